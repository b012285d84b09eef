#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_additional_data; it carries nothing but success.
struct UserUpdateAdditionalDataResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserUpdateAdditionalDataResponse)
  bool operator==(const UserUpdateAdditionalDataResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateAdditionalDataResponse>);

}  // namespace qb
