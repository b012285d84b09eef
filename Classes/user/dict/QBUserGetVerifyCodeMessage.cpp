#include <QBComponentAPI/user/dict/QBUserGetVerifyCodeMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetVerifyCodeMessage)
