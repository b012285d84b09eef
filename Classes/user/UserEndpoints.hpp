// The account endpoints: path, verb and authentication, shared by both faces.
#pragma once

#include <array>

#include <QBComponentAPI/frame/Endpoint.hpp>

namespace qb::user {

inline constexpr Endpoint kInitialise{"v3/user/initialise", HttpVerb::post, Auth::optional};
inline constexpr Endpoint kLoginOrCreate{"v3/user/login_or_create", HttpVerb::post, Auth::optional};
inline constexpr Endpoint kLoginOrCreateForWebsite{"v3/user/login_or_create_for_website", HttpVerb::post,
                                                   Auth::optional, Faces::typedOnly};
inline constexpr Endpoint kAppleCallback{"v3/user/apple_callback", HttpVerb::post, Auth::optional,
                                         Faces::typedOnly};
inline constexpr Endpoint kGetVerifyCode{"v3/user/get_verify_code", HttpVerb::post, Auth::none};
inline constexpr Endpoint kCheckVerifyCode{"v3/user/check_verify_code", HttpVerb::post, Auth::none};
inline constexpr Endpoint kResetPasswordAndLogin{"v3/user/reset_password_and_login", HttpVerb::post, Auth::none};
inline constexpr Endpoint kDeleteAccount{"v3/user/delete_account", HttpVerb::post, Auth::required};
inline constexpr Endpoint kGetUser{"v3/user/get", HttpVerb::get, Auth::required};
inline constexpr Endpoint kUpdate{"v3/user/update", HttpVerb::post, Auth::required};
inline constexpr Endpoint kUpdateAdditionalData{"v3/user/update_additional_data", HttpVerb::post, Auth::required};
inline constexpr Endpoint kUpdateDeviceInfo{"v3/user/update_device_info", HttpVerb::post, Auth::required};
inline constexpr Endpoint kUpdateUserConversion{"v3/user/update_user_conversion", HttpVerb::post, Auth::required};
inline constexpr Endpoint kUpdateUserDevicePushInfo{"v3/user/update_user_device_push_info", HttpVerb::post,
                                                    Auth::required};
inline constexpr Endpoint kUpdateUserProperties{"v3/user/update_user_properties", HttpVerb::post, Auth::required};
inline constexpr Endpoint kUpdateUserTimeZone{"v3/user/update_user_time_zone", HttpVerb::post, Auth::required,
                                              Faces::dictionaryOnly};
inline constexpr Endpoint kGetConfig{"v3/user/get_config", HttpVerb::post, Auth::required};
inline constexpr Endpoint kGetFaq{"v3/user/get_faq", HttpVerb::get, Auth::required};

// Every account endpoint, for tools that list or look them up.
inline constexpr std::array kEndpoints{
    kInitialise,       kLoginOrCreate,      kLoginOrCreateForWebsite, kAppleCallback,
    kGetVerifyCode,    kCheckVerifyCode,    kResetPasswordAndLogin,   kDeleteAccount,
    kGetUser,          kUpdate,             kUpdateAdditionalData,    kUpdateDeviceInfo,
    kUpdateUserConversion, kUpdateUserDevicePushInfo, kUpdateUserProperties, kUpdateUserTimeZone,
    kGetConfig,        kGetFaq,
};

}  // namespace qb::user
