#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update.
struct UserUpdateResponse {
  std::optional<std::string> avatarUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("avatar_url", &UserUpdateResponse::avatarUrl));
  QB_TYPED_RESPONSE(UserUpdateResponse)
  bool operator==(const UserUpdateResponse&) const = default;
};
static_assert(APIDecodableResponse<UserUpdateResponse>);

}  // namespace qb
