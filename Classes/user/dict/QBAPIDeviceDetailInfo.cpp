#include <QBComponentAPI/user/dict/QBAPIDeviceDetailInfo.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIAndroidDeviceData.hpp>
#include <QBComponentAPI/user/dict/QBAPIIosDeviceData.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIDeviceDetailInfo)
