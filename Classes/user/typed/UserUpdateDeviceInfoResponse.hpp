#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_device_info; it carries nothing but success.
struct UserUpdateDeviceInfoResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserUpdateDeviceInfoResponse)
  bool operator==(const UserUpdateDeviceInfoResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateDeviceInfoResponse>);

}  // namespace qb
