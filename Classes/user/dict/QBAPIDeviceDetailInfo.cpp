#include "user/dict/QBAPIDeviceDetailInfo.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIAndroidDeviceData.hpp"
#include "user/dict/QBAPIIosDeviceData.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIDeviceDetailInfo)
