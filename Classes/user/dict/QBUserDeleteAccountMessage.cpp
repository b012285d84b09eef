#include "user/dict/QBUserDeleteAccountMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserDeleteAccountMessage)
