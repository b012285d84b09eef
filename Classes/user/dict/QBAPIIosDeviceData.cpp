#include <QBComponentAPI/user/dict/QBAPIIosDeviceData.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIIosDeviceData)
