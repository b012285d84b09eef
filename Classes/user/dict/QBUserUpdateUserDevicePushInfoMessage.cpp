#include <QBComponentAPI/user/dict/QBUserUpdateUserDevicePushInfoMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserDevicePushInfoMessage)
