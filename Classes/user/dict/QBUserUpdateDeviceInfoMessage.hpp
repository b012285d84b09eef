#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIDeviceInfo;

/// update_device_info: registers the device.
class QBUserUpdateDeviceInfoMessage final : public DictMessage<QBUserUpdateDeviceInfoMessage> {
  QB_DICT_MESSAGE(QBUserUpdateDeviceInfoMessage, "UpdateDeviceInfo", user::kUpdateDeviceInfo)
  static std::shared_ptr<QBUserUpdateDeviceInfoMessage> initWithData(std::shared_ptr<QBAPIDeviceInfo> deviceInfo) {
    return make<&Self::deviceInfo_>(std::move(deviceInfo));
  }

  QB_MODEL(QBAPIDeviceInfo, deviceInfo, DeviceInfo)
  QB_PARAMS(QB_REQUIRED(deviceInfo, "device_info"))
  QB_RESULTS()
};

}  // namespace qb
