#include <QBComponentAPI/user/dict/QBAPILoginMethod.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPILoginMethod)
