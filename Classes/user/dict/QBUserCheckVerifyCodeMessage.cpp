#include <QBComponentAPI/user/dict/QBUserCheckVerifyCodeMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserCheckVerifyCodeMessage)
