#include "user/dict/QBAPIVipInfo.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIVipInfo)
