#include <QBComponentAPI/user/dict/QBUserUpdateUserConversionMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserConversionMessage)
