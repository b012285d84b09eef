#include "user/dict/QBUserGetUserMessage.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIUser.hpp"
#include "user/dict/QBAPIUserAdditionalData.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetUserMessage)
