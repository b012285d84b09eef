#include <QBComponentAPI/user/dict/QBUserUpdateUserTimeZoneMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserTimeZoneMessage)
