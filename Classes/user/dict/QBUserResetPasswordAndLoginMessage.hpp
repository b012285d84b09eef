#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIDeviceInfo;
class QBAPIUser;
class QBAPIUserAdditionalData;

/// reset_password_and_login: sets a new password with a verification code and logs in.
class QBUserResetPasswordAndLoginMessage final : public DictMessage<QBUserResetPasswordAndLoginMessage> {
  QB_DICT_MESSAGE(QBUserResetPasswordAndLoginMessage, "ResetPasswordAndLogin", user::kResetPasswordAndLogin)
  static std::shared_ptr<QBUserResetPasswordAndLoginMessage> initWithData(std::optional<JsonValue> email,
                                                                          std::optional<JsonValue> verifyCode,
                                                                          std::optional<JsonValue> password,
                                                                          std::shared_ptr<QBAPIDeviceInfo> deviceInfo) {
    return make<&Self::email_, &Self::verifyCode_, &Self::password_, &Self::deviceInfo_>(
        std::move(email), std::move(verifyCode), std::move(password), std::move(deviceInfo));
  }

  QB_VALUE(email, Email)
  QB_VALUE(verifyCode, VerifyCode)
  QB_VALUE(password, Password)
  QB_MODEL(QBAPIDeviceInfo, deviceInfo, DeviceInfo)
  QB_PARAMS(QB_REQUIRED(email, "email"), QB_REQUIRED(verifyCode, "verify_code"), QB_REQUIRED(password, "password"),
            QB_REQUIRED(deviceInfo, "device_info"))

  QB_MODEL(QBAPIUser, user, User)
  QB_MODEL(QBAPIUserAdditionalData, userAdditionalData, UserAdditionalData)
  QB_VALUE(accessToken, AccessToken)
  QB_RESULTS(QB_OPTIONAL(user, "user"), QB_OPTIONAL(userAdditionalData, "user_additional_data"),
             QB_OPTIONAL(accessToken, "access_token"))
};

}  // namespace qb
