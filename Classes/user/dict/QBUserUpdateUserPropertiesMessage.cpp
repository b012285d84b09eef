#include <QBComponentAPI/user/dict/QBUserUpdateUserPropertiesMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserPropertiesMessage)
