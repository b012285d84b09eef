#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserAppleLoginCallBackResponse.hpp>

namespace qb {

/// apple_callback: trades a sign-in authorisation code for the Apple user identifier.
struct UserAppleLoginCallBackRequest {
  std::string code;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("code", &UserAppleLoginCallBackRequest::code));
  QB_TYPED_REQUEST(user::kAppleCallback, UserAppleLoginCallBackResponse)
  bool operator==(const UserAppleLoginCallBackRequest&) const = default;
};
static_assert(APIEncodableRequest<UserAppleLoginCallBackRequest>);

}  // namespace qb
