#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIDeviceDetailInfo.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIDeviceInfo)
