#include "user/dict/QBAPIDeviceInfo.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIDeviceDetailInfo.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIDeviceInfo)
