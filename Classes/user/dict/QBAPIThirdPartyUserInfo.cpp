#include "user/dict/QBAPIThirdPartyUserInfo.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIThirdPartyUserInfo)
