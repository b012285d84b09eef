#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIFaq)
