#include "user/dict/QBAPILoginInfo.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIThirdPartyUserInfo.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPILoginInfo)
