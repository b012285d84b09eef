#include <QBComponentAPI/user/dict/QBAPIVipInfo.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIVipInfo)
