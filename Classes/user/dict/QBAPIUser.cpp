#include <QBComponentAPI/user/dict/QBAPIUser.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIUser)
