#include <QBComponentAPI/user/dict/QBAPIAndroidDeviceData.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIAndroidDeviceData)
