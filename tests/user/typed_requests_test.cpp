// Every Typed-face account request: what it tells the host and the exact body it encodes.
#include <gtest/gtest.h>

#include <QBComponentAPI/user/enums/UserEnums.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
#include <functional>

#include "typed_helpers.hpp"

namespace qb {
namespace {

const DeviceInfoModel kDevice{.deviceType = DeviceType::android, .deviceToken = "t"};
const LoginInfoModel kLogin{.loginType = LoginType::email, .loginKey = "a@b.c", .loginPassword = "pw"};

const std::vector<RequestRow>& rows() {
  static const std::vector<RequestRow> table{
      {[] { return describe(UserInitialiseRequest{.languageCode = LanguageCode::en, .countryCode = "US"}); },
       "v3/user/initialise", R"({"language_code":0,"country_code":"US"})"},
      {[] {
         return describe(UserInitialiseRequest{
             .loginInfo = kLogin, .deviceInfo = kDevice, .languageCode = LanguageCode::ja, .countryCode = "JP"});
       },
       "v3/user/initialise",
       R"({"login_info":{"login_type":3,"login_key":"a@b.c","login_password":"pw"},)"
       R"("device_info":{"device_type":2,"device_token":"t"},"language_code":3,"country_code":"JP"})"},
      {[] {
         return describe(UserLoginOrCreateRequest{
             .loginInfo = kLogin, .deviceInfo = kDevice, .loginAction = LoginAction::createThenLogin});
       },
       "v3/user/login_or_create",
       R"({"login_info":{"login_type":3,"login_key":"a@b.c","login_password":"pw"},)"
       R"("device_info":{"device_type":2,"device_token":"t"},"login_action":2})"},
      {[] {
         return describe(UserLoginOrCreateForWebsiteRequest{
             .loginInfo = kLogin, .deviceInfo = kDevice, .loginAction = LoginAction::onlyLogin});
       },
       "v3/user/login_or_create_for_website",
       R"({"login_info":{"login_type":3,"login_key":"a@b.c","login_password":"pw"},)"
       R"("device_info":{"device_type":2,"device_token":"t"},"login_action":1})"},
      {[] { return describe(UserAppleLoginCallBackRequest{.code = "c0de"}); }, "v3/user/apple_callback",
       R"({"code":"c0de"})"},
      {[] { return describe(UserGetVerifyCodeRequest{.email = "a@b.c", .languageCode = LanguageCode::fr}); },
       "v3/user/get_verify_code", R"({"email":"a@b.c","language_code":5})"},
      {[] { return describe(UserCheckVerifyCodeRequest{.email = "a@b.c", .verifyCode = "1234"}); },
       "v3/user/check_verify_code", R"({"email":"a@b.c","verify_code":"1234"})"},
      {[] {
         return describe(UserResetPasswordAndLoginRequest{
             .email = "a@b.c", .verifyCode = "1234", .password = "pw", .deviceInfo = kDevice});
       },
       "v3/user/reset_password_and_login",
       R"({"email":"a@b.c","verify_code":"1234","password":"pw","device_info":{"device_type":2,"device_token":"t"}})"},
      {[] { return describe(UserDeleteAccountRequest{}); }, "v3/user/delete_account", "{}"},
      {[] { return describe(UserGetUserRequest{}); }, "v3/user/get", "{}"},
      {[] { return describe(UserUpdateRequest{}); }, "v3/user/update", "{}"},
      {[] { return describe(UserUpdateRequest{.nickname = "Fern", .gender = Gender::female}); }, "v3/user/update",
       R"({"nickname":"Fern","gender":1})"},
      {[] { return describe(UserUpdateAdditionalDataRequest{.emailNotificationEnabled = false}); },
       "v3/user/update_additional_data", R"({"email_notification_enabled":false})"},
      {[] { return describe(UserUpdateDeviceInfoRequest{.deviceInfo = kDevice}); }, "v3/user/update_device_info",
       R"({"device_info":{"device_type":2,"device_token":"t"}})"},
      {[] { return describe(UserUpdateUserConversionRequest{.isOrganic = true}); }, "v3/user/update_user_conversion",
       R"({"is_organic":true})"},
      {[] {
         return describe(UserUpdateUserConversionRequest{.isOrganic = false,
                                                         .costCentsUsd = 125,
                                                         .installTime = Date(std::chrono::seconds(1700000000)),
                                                         .absetId = "ab"});
       },
       "v3/user/update_user_conversion",
       R"({"is_organic":false,"cost_cents_usd":125,"install_time":1700000000.0,"abset_id":"ab"})"},
      {[] { return describe(UserUpdateUserDevicePushInfoRequest{}); }, "v3/user/update_user_device_push_info", "{}"},
      {[] {
         return describe(UserUpdateUserDevicePushInfoRequest{
             .timeZone = "UTC", .pushKey = "pk", .languageCode = LanguageCode::de, .countryCode = "DE"});
       },
       "v3/user/update_user_device_push_info",
       R"({"time_zone":"UTC","push_key":"pk","language_code":6,"country_code":"DE"})"},
      {[] { return describe(UserUpdateUserPropertiesRequest{.key = "k", .value = "v"}); },
       "v3/user/update_user_properties", R"({"key":"k","value":"v"})"},
      {[] { return describe(UserGetConfigRequest{.languageCode = LanguageCode::en, .countryCode = "US"}); },
       "v3/user/get_config", R"({"language_code":0,"country_code":"US"})"},
      {[] { return describe(UserGetFaqRequest{.languageCode = LanguageCode::ko, .deviceType = DeviceType::ios}); },
       "v3/user/get_faq", R"({"language_code":4,"device_type":1})"},
  };
  return table;
}

TEST(UserTypedRequests, EncodeExactly) { expectRequestRows(rows()); }

TEST(UserTypedRequests, UpdateSendsTheAvatarOnlyAsAMultipartBody) {
  const APIFile avatar{.data = {std::byte{0x89}, std::byte{'P'}}, .contentType = "image/png"};
  const UserUpdateRequest update{.avatar = avatar};
  EXPECT_EQ(update.parseParamater(JSONEncoder()), "{}");
  const auto bodies = update.mimeBodies();
  ASSERT_EQ(bodies.size(), 1u);
  EXPECT_EQ(bodies[0], (APIMimeBody{"avatar", avatar, "file", "application/octet-stream"}));
}

TEST(UserTypedRequests, ResponsesWithoutFieldsStillRequireAnObject) {
  EXPECT_NO_THROW(UserDeleteAccountResponse::init(std::string_view(R"({"extra": 1})"), JSONDecoder()));
  EXPECT_THROW(UserCheckVerifyCodeResponse::init(std::string_view("[]"), JSONDecoder()), DecodingError);
  EXPECT_THROW(UserUpdateUserPropertiesResponse::init(std::string_view("null"), JSONDecoder()), DecodingError);
  // The initialise reply may lack a token; the login replies may not.
  EXPECT_NO_THROW(JSONDecoder().decode<UserAppleLoginCallBackResponse>(R"({"apple_user_id": "x"})"));
}

}  // namespace
}  // namespace qb
