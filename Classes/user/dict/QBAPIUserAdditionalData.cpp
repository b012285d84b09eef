#include <QBComponentAPI/user/dict/QBAPIUserAdditionalData.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIUserAdditionalData)
