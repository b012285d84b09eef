#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of apple_callback.
struct UserAppleLoginCallBackResponse {
  std::string appleUserId;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("apple_user_id", &UserAppleLoginCallBackResponse::appleUserId));
  QB_TYPED_RESPONSE(UserAppleLoginCallBackResponse)
  bool operator==(const UserAppleLoginCallBackResponse&) const = default;
};
static_assert(APIDecodableResponse<UserAppleLoginCallBackResponse>);

}  // namespace qb
