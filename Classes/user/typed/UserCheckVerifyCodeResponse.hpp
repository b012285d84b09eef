#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of check_verify_code; it carries nothing but success.
struct UserCheckVerifyCodeResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(UserCheckVerifyCodeResponse)
  bool operator==(const UserCheckVerifyCodeResponse&) const = default;
};
static_assert(APIDecodableResponse<UserCheckVerifyCodeResponse>);

}  // namespace qb
