#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserResetPasswordAndLoginResponse.hpp>

namespace qb {

/// reset_password_and_login: sets a new password with a verification code and logs in.
struct UserResetPasswordAndLoginRequest {
  std::string email;
  std::string verifyCode;
  std::string password;
  DeviceInfoModel deviceInfo;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("email", &UserResetPasswordAndLoginRequest::email),
                     qb::key("verify_code", &UserResetPasswordAndLoginRequest::verifyCode),
                     qb::key("password", &UserResetPasswordAndLoginRequest::password),
                     qb::key("device_info", &UserResetPasswordAndLoginRequest::deviceInfo));
  QB_TYPED_REQUEST(user::kResetPasswordAndLogin, UserResetPasswordAndLoginResponse)
  bool operator==(const UserResetPasswordAndLoginRequest&) const = default;
};
static_assert(APIEncodableRequest<UserResetPasswordAndLoginRequest>);

}  // namespace qb
