#pragma once

#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/typed/DeviceInfoModel.hpp"
#include "user/typed/UserUpdateDeviceInfoResponse.hpp"

namespace qb {

// update_device_info: registers the device.
struct UserUpdateDeviceInfoRequest {
  DeviceInfoModel deviceInfo;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("device_info", &UserUpdateDeviceInfoRequest::deviceInfo));
  QB_TYPED_REQUEST(user::kUpdateDeviceInfo, UserUpdateDeviceInfoResponse)
  bool operator==(const UserUpdateDeviceInfoRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateDeviceInfoRequest>);

}  // namespace qb
