#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_user_conversion; it carries nothing but success.
struct UserUpdateUserConversionResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserUpdateUserConversionResponse)
  bool operator==(const UserUpdateUserConversionResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateUserConversionResponse>);

}  // namespace qb
