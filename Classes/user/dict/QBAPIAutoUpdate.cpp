#include <QBComponentAPI/user/dict/QBAPIAutoUpdate.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIAutoUpdate)
