#include "user/dict/QBAPIFaq.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIFaq)
