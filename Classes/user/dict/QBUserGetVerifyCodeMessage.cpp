#include "user/dict/QBUserGetVerifyCodeMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetVerifyCodeMessage)
