#include "user/dict/QBUserCheckVerifyCodeMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserCheckVerifyCodeMessage)
