#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of delete_account; it carries nothing but success.
struct UserDeleteAccountResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserDeleteAccountResponse)
  bool operator==(const UserDeleteAccountResponse&) const = default;
};
static_assert(APIDecodableResponse<UserDeleteAccountResponse>);

}  // namespace qb
