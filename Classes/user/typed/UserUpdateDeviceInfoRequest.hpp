#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserUpdateDeviceInfoResponse.hpp>

namespace qb {

/// update_device_info: registers the device.
struct UserUpdateDeviceInfoRequest {
  DeviceInfoModel deviceInfo;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("device_info", &UserUpdateDeviceInfoRequest::deviceInfo));
  QB_TYPED_REQUEST(user::kUpdateDeviceInfo, UserUpdateDeviceInfoResponse)
  bool operator==(const UserUpdateDeviceInfoRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateDeviceInfoRequest>);

}  // namespace qb
