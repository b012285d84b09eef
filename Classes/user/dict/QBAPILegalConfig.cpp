#include <QBComponentAPI/user/dict/QBAPILegalConfig.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPILegalConfig)
