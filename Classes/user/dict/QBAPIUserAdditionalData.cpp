#include "user/dict/QBAPIUserAdditionalData.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIUserAdditionalData)
