#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_user_properties; it carries nothing but success.
struct UserUpdateUserPropertiesResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserUpdateUserPropertiesResponse)
  bool operator==(const UserUpdateUserPropertiesResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateUserPropertiesResponse>);

}  // namespace qb
