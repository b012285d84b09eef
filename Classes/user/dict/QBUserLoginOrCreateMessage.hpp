#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIDeviceInfo;
class QBAPILoginInfo;
class QBAPIUser;
class QBAPIUserAdditionalData;

/// login_or_create: logs in, or creates the account first, as loginAction says.
class QBUserLoginOrCreateMessage final : public DictMessage<QBUserLoginOrCreateMessage> {
  QB_DICT_MESSAGE(QBUserLoginOrCreateMessage, "LoginOrCreate", user::kLoginOrCreate)
  static std::shared_ptr<QBUserLoginOrCreateMessage> initWithData(std::shared_ptr<QBAPILoginInfo> loginInfo,
                                                                  std::shared_ptr<QBAPIDeviceInfo> deviceInfo,
                                                                  std::int64_t loginAction) {
    return make<&Self::loginInfo_, &Self::deviceInfo_, &Self::loginAction_>(std::move(loginInfo), std::move(deviceInfo),
                                                                            loginAction);
  }

  QB_MODEL(QBAPILoginInfo, loginInfo, LoginInfo)
  QB_MODEL(QBAPIDeviceInfo, deviceInfo, DeviceInfo)
  QB_INTEGER(loginAction, LoginAction)
  QB_PARAMS(QB_REQUIRED(loginInfo, "login_info"), QB_REQUIRED(deviceInfo, "device_info"),
            QB_OPTIONAL(loginAction, "login_action"))

  QB_MODEL(QBAPIUser, user, User)
  QB_MODEL(QBAPIUserAdditionalData, userAdditionalData, UserAdditionalData)
  QB_VALUE(accessToken, AccessToken)
  QB_RESULTS(QB_OPTIONAL(user, "user"), QB_OPTIONAL(userAdditionalData, "user_additional_data"),
             QB_OPTIONAL(accessToken, "access_token"))
};

}  // namespace qb
