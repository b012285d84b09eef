#include "user/dict/QBAPILegalConfig.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPILegalConfig)
