#include "user/dict/QBAPIIosDeviceData.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIIosDeviceData)
