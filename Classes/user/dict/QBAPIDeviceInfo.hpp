#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIDeviceDetailInfo;

/// The device the app runs on.
class QBAPIDeviceInfo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIDeviceInfo, "DeviceInfo")
  QB_INTEGER(deviceType, DeviceType)
  QB_VALUE(deviceToken, DeviceToken)
  QB_MODEL(QBAPIDeviceDetailInfo, deviceDetailInfo, DeviceDetailInfo)
  QB_FIELDS(QB_OPTIONAL(deviceType, "device_type"), QB_REQUIRED(deviceToken, "device_token"),
            QB_OPTIONAL(deviceDetailInfo, "device_detail_info"))
};

}  // namespace qb
