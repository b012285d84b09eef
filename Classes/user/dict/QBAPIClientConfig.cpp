#include "user/dict/QBAPIClientConfig.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIAutoUpdate.hpp"
#include "user/dict/QBAPILegalConfig.hpp"

QB_DICT_MODEL_DEFINE(qb::QBAPIClientConfig)
