#include "user/dict/QBAPIAndroidDeviceData.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIAndroidDeviceData)
