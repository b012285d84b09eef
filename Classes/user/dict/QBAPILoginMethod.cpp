#include "user/dict/QBAPILoginMethod.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPILoginMethod)
