#include "user/dict/QBAPIUser.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIUser)
