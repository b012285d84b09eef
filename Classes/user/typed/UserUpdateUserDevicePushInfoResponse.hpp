#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_user_device_push_info; it carries nothing but success.
struct UserUpdateUserDevicePushInfoResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserUpdateUserDevicePushInfoResponse)
  bool operator==(const UserUpdateUserDevicePushInfoResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateUserDevicePushInfoResponse>);

}  // namespace qb
