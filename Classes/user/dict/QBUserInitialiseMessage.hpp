#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIClientConfig;
class QBAPIDeviceInfo;
class QBAPILoginInfo;
class QBAPIUser;
class QBAPIUserAdditionalData;

/// initialise: starts a session, creating a guest account when there is none.
class QBUserInitialiseMessage final : public DictMessage<QBUserInitialiseMessage> {
  QB_DICT_MESSAGE(QBUserInitialiseMessage, "Initialise", user::kInitialise)
  static std::shared_ptr<QBUserInitialiseMessage> initWithData(std::shared_ptr<QBAPILoginInfo> loginInfo,
                                                               std::shared_ptr<QBAPIDeviceInfo> deviceInfo,
                                                               std::int64_t languageCode,
                                                               std::optional<JsonValue> countryCode) {
    return make<&Self::loginInfo_, &Self::deviceInfo_, &Self::languageCode_, &Self::countryCode_>(
        std::move(loginInfo), std::move(deviceInfo), languageCode, std::move(countryCode));
  }

  QB_MODEL(QBAPILoginInfo, loginInfo, LoginInfo)
  QB_MODEL(QBAPIDeviceInfo, deviceInfo, DeviceInfo)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_OPTIONAL(loginInfo, "login_info"), QB_OPTIONAL(deviceInfo, "device_info"),
            QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL(QBAPIUser, user, User)
  QB_MODEL(QBAPIUserAdditionalData, userAdditionalData, UserAdditionalData)
  QB_VALUE(accessToken, AccessToken)
  QB_MODEL(QBAPIClientConfig, config, Config)
  QB_VALUE(otherConfigs, OtherConfigs)
  QB_VALUE(appServerTime, AppServerTime)
  QB_VALUE(country, Country)
  QB_RESULTS(QB_OPTIONAL(user, "user"), QB_OPTIONAL(userAdditionalData, "user_additional_data"),
             QB_OPTIONAL(accessToken, "access_token"), QB_OPTIONAL(config, "config"),
             QB_OPTIONAL(otherConfigs, "other_configs"), QB_OPTIONAL(appServerTime, "app_server_time"),
             QB_OPTIONAL(country, "country"))
};

}  // namespace qb
