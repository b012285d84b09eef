#include "user/dict/QBUserGetConfigMessage.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIClientConfig.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetConfigMessage)
