// The account domain: every endpoint and every record, once. The faces refer to the endpoint constants
// declared here (qb::user::kGetConfig); everything that lists endpoints or records derives from these
// lines (see frame/Catalogue.hpp).
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_USER_ENDPOINTS(BOTH, DICT, TYPED)                                                                 \
  BOTH(kInitialise, "v3/user/initialise", post, optional, QBUserInitialiseMessage, UserInitialiseRequest)   \
  BOTH(kLoginOrCreate, "v3/user/login_or_create", post, optional, QBUserLoginOrCreateMessage,               \
       UserLoginOrCreateRequest)                                                                             \
  TYPED(kLoginOrCreateForWebsite, "v3/user/login_or_create_for_website", post, optional,                     \
        UserLoginOrCreateForWebsiteRequest)                                                                  \
  TYPED(kAppleCallback, "v3/user/apple_callback", post, optional, UserAppleLoginCallBackRequest)             \
  BOTH(kGetVerifyCode, "v3/user/get_verify_code", post, none, QBUserGetVerifyCodeMessage,                    \
       UserGetVerifyCodeRequest)                                                                             \
  BOTH(kCheckVerifyCode, "v3/user/check_verify_code", post, none, QBUserCheckVerifyCodeMessage,              \
       UserCheckVerifyCodeRequest)                                                                           \
  BOTH(kResetPasswordAndLogin, "v3/user/reset_password_and_login", post, none,                               \
       QBUserResetPasswordAndLoginMessage, UserResetPasswordAndLoginRequest)                                 \
  BOTH(kDeleteAccount, "v3/user/delete_account", post, required, QBUserDeleteAccountMessage,                 \
       UserDeleteAccountRequest)                                                                             \
  BOTH(kGetUser, "v3/user/get", get, required, QBUserGetUserMessage, UserGetUserRequest)                     \
  BOTH(kUpdate, "v3/user/update", post, required, QBUserUpdateMessage, UserUpdateRequest)                    \
  BOTH(kUpdateAdditionalData, "v3/user/update_additional_data", post, required,                              \
       QBUserUpdateAdditionalDataMessage, UserUpdateAdditionalDataRequest)                                   \
  BOTH(kUpdateDeviceInfo, "v3/user/update_device_info", post, required, QBUserUpdateDeviceInfoMessage,       \
       UserUpdateDeviceInfoRequest)                                                                          \
  BOTH(kUpdateUserConversion, "v3/user/update_user_conversion", post, required,                              \
       QBUserUpdateUserConversionMessage, UserUpdateUserConversionRequest)                                   \
  BOTH(kUpdateUserDevicePushInfo, "v3/user/update_user_device_push_info", post, required,                    \
       QBUserUpdateUserDevicePushInfoMessage, UserUpdateUserDevicePushInfoRequest)                           \
  BOTH(kUpdateUserProperties, "v3/user/update_user_properties", post, required,                              \
       QBUserUpdateUserPropertiesMessage, UserUpdateUserPropertiesRequest)                                   \
  DICT(kUpdateUserTimeZone, "v3/user/update_user_time_zone", post, required, QBUserUpdateUserTimeZoneMessage) \
  BOTH(kGetConfig, "v3/user/get_config", post, required, QBUserGetConfigMessage, UserGetConfigRequest)       \
  BOTH(kGetFaq, "v3/user/get_faq", get, required, QBUserGetFaqMessage, UserGetFaqRequest)

/// Dictionary-face model, Typed-face model
#define QB_USER_RECORDS(BOTH, DICT, TYPED)                   \
  BOTH(QBAPIUser, UserModel)                                 \
  BOTH(QBAPIUserAdditionalData, UserAdditionalDataModel)     \
  BOTH(QBAPILoginInfo, LoginInfoModel)                       \
  BOTH(QBAPILoginMethod, LoginMethodModel)                   \
  BOTH(QBAPIThirdPartyUserInfo, ThirdPartyUserInfoModel)     \
  BOTH(QBAPIVipInfo, VipInfoModel)                           \
  BOTH(QBAPIDeviceInfo, DeviceInfoModel)                     \
  BOTH(QBAPIDeviceDetailInfo, DeviceDetailInfoModel)         \
  BOTH(QBAPIIosDeviceData, IosDeviceDataModel)               \
  BOTH(QBAPIAndroidDeviceData, AndroidDeviceDataModel)       \
  BOTH(QBAPIClientConfig, ClientConfigModel)                 \
  BOTH(QBAPIAutoUpdate, AutoUpdateModel)                     \
  BOTH(QBAPILegalConfig, LegalConfigModel)                   \
  BOTH(QBAPIFaq, FaqModel)

QB_CATALOGUE(user, QB_USER_ENDPOINTS, QB_USER_RECORDS)
