#include "user/dict/QBUserGetFaqMessage.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIFaq.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetFaqMessage)
