#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>

namespace qb {

/// The reply of reset_password_and_login.
struct UserResetPasswordAndLoginResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;
  std::string accessToken;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("user", &UserResetPasswordAndLoginResponse::user),
                     qb::key("user_additional_data", &UserResetPasswordAndLoginResponse::userAdditionalData),
                     qb::key("access_token", &UserResetPasswordAndLoginResponse::accessToken));
  QB_TYPED_RESPONSE(UserResetPasswordAndLoginResponse)
  bool operator==(const UserResetPasswordAndLoginResponse&) const = default;
};
static_assert(APIDecodableResponse<UserResetPasswordAndLoginResponse>);

}  // namespace qb
