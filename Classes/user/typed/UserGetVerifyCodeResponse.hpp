#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_verify_code; it carries nothing but success.
struct UserGetVerifyCodeResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserGetVerifyCodeResponse)
  bool operator==(const UserGetVerifyCodeResponse&) const = default;
};
static_assert(APIDecodableResponse<UserGetVerifyCodeResponse>);

}  // namespace qb
