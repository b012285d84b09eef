#include "user/dict/QBAPIAutoUpdate.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIAutoUpdate)
