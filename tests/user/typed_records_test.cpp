// Every Typed-face account record: round trip, required and optional members, enumeration rules.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/user/enums/UserEnums.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
#include <functional>

#include "typed_helpers.hpp"
#include "user/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures;

const std::vector<RecordRow>& rows() {
  static const std::vector<RecordRow> table{
      recordRow<UserModel>(
          "User", kUser,
          {"user_id", "uuid", "created_at", "guest_user", "vip", "auto_renew_status", "expert_consultation_count"}),
      recordRow<UserAdditionalDataModel>("UserAdditionalData", kUserAdditional,
                                         {"exist_user", "today_user", "is_vip_in_history"}),
      recordRow<LoginInfoModel>("LoginInfo", kLoginInfo, {"login_type", "login_key"}),
      recordRow<LoginMethodModel>("LoginMethod", kLoginMethod, {"type", "login_name"}),
      recordRow<ThirdPartyUserInfoModel>("ThirdPartyUserInfo", kThirdParty, {}),
      recordRow<VipInfoModel>(
          "VipInfo", kVipInfo,
          {"user_id", "is_vip", "is_trial", "is_auto_renew", "is_vip_in_history", "is_paid_in_history", "vip_level"}),
      recordRow<DeviceInfoModel>("DeviceInfo", kDevice, {"device_type", "device_token"}),
      recordRow<DeviceDetailInfoModel>("DeviceDetailInfo", kDeviceDetail,
                                       {"apps_flyer_id", "country_code", "language", "app_version"}),
      recordRow<IosDeviceDataModel>("IosDeviceData", kIos, {}),
      recordRow<AndroidDeviceDataModel>("AndroidDeviceData", kAndroid, {}),
      recordRow<ClientConfigModel>("ClientConfig", kClientConfig,
                                   {"auto_update", "expert_default_count", "timestamp", "legal_config"}),
      recordRow<AutoUpdateModel>("AutoUpdate", kAutoUpdate, {"has_update", "force_update"}),
      recordRow<LegalConfigModel>("LegalConfig", kLegal, {"agreement_version", "privacy_policy_version"}),
      recordRow<FaqModel>("Faq", kFaq, {"title", "content", "faq_type"}),
      recordRow<UserInitialiseResponse>("InitialiseResponse", kInitialiseReply,
                                        {"user", "user_additional_data", "config", "other_configs", "app_server_time"}),
      recordRow<UserLoginOrCreateResponse>("LoginOrCreateResponse", kLoginReply,
                                           {"user", "user_additional_data", "access_token"}),
      recordRow<UserLoginOrCreateForWebsiteResponse>("LoginOrCreateForWebsiteResponse", kLoginReply,
                                                     {"user", "user_additional_data", "access_token"}),
      recordRow<UserResetPasswordAndLoginResponse>("ResetPasswordAndLoginResponse", kLoginReply,
                                                   {"user", "user_additional_data", "access_token"}),
      recordRow<UserGetUserResponse>("GetUserResponse", kLoginReply, {"user", "user_additional_data"}),
      recordRow<UserAppleLoginCallBackResponse>("AppleLoginCallBackResponse", R"({"apple_user_id": "a.1"})",
                                                {"apple_user_id"}),
      recordRow<UserGetConfigResponse>("GetConfigResponse",
                                       R"({"config": )" + kClientConfig + R"(, "other_configs": {}})",
                                       {"config", "other_configs"}),
      recordRow<UserGetFaqResponse>("GetFaqResponse", "{\"faqs\": [" + kFaq + "]}", {"faqs"}),
      recordRow<UserUpdateResponse>("UpdateResponse", R"({"avatar_url": "https://a.example/2.png"})", {}),
      recordRow<UserGetVerifyCodeResponse>("GetVerifyCodeResponse", "{}", {}),
  };
  return table;
}

TEST(UserTypedRecords, FullRepliesRoundTrip) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    row.roundTrip(row.full);
  }
}

TEST(UserTypedRecords, RequiredMembersFailWhenMissingOrNullOptionalOnesMayBeAbsent) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    expectRequiredKeysFail(row.name, full, row.required, row.roundTrip);
    JsonMap minimal;
    for (const char* key : row.required) minimal[key] = full.at(key);
    SCOPED_TRACE(row.name);
    row.roundTrip(toJson(minimal));
    for (const auto& member : full) {
      if (!minimal.contains(member.key())) minimal[member.key()] = nullptr;  // null optionals are absent
    }
    row.roundTrip(toJson(minimal));
  }
}

TEST(UserTypedRecords, EnumerationRules) {
  JsonMap vip = parseJsonMap(kVipInfo);
  for (int level : {9, -1, 1}) {
    vip["vip_level"] = level;
    EXPECT_EQ(JSONDecoder().decode<VipInfoModel>(toJson(vip)).vipLevel, VipLevel::gold) << level;
  }
  EXPECT_EQ(allCases<VipLevel>().size(), 6u);

  struct Case {
    std::string json;
    const char* description;
  } failing[] = {
      {R"({"nickname": "n", "gender": 7})", "Cannot initialize Gender from invalid Int value 7"},
      {R"({"login_type": 4, "login_key": "k"})", "Cannot initialize LoginType from invalid Int value 4"},
      {R"({"login_type": 5, "login_key": "k"})", "Cannot initialize LoginType from invalid Int value 5"},
      {R"({"login_type": 0, "login_key": "k"})", "Cannot initialize LoginType from invalid Int value 0"},
  };
  for (const auto& c : failing) {
    try {
      if (c.json.find("gender") != std::string::npos) {
        JSONDecoder().decode<ThirdPartyUserInfoModel>(c.json);
      } else {
        JSONDecoder().decode<LoginInfoModel>(c.json);
      }
      ADD_FAILURE() << c.json;
    } catch (const DecodingError& e) {
      EXPECT_EQ(e.kind(), DecodingError::Kind::dataCorrupted);
      EXPECT_EQ(e.debugDescription(), c.description);
    }
  }
  JsonMap user = parseJsonMap(kUser);
  user["auto_renew_status"] = 0;
  EXPECT_THROW(JSONDecoder().decode<UserModel>(toJson(user)), DecodingError) << "0 is no AutoRenewStatus";
}

TEST(UserTypedRecords, DifferencesFromTheDictionaryFace) {
  JsonMap user = parseJsonMap(kUser);
  user.erase("gender");
  EXPECT_FALSE(JSONDecoder().decode<UserModel>(toJson(user)).gender);
  user["gender"] = nullptr;
  EXPECT_FALSE(JSONDecoder().decode<UserModel>(toJson(user)).gender);
  user["properties"] = "text";
  EXPECT_THROW(JSONDecoder().decode<UserModel>(toJson(user)), DecodingError);

  const auto decoded = JSONDecoder().decode<UserModel>(kUser);
  EXPECT_EQ(decoded.userId, 9007199254740993);
  EXPECT_EQ(decoded.uuid, "5f0c-\u00e9\"x\"");
  EXPECT_EQ(decoded.createdAt.time_since_epoch().count(), 1700000000000);
  EXPECT_EQ(decoded.properties->at("n").value, parseJson("[1, 2.5, null]"));

  // "is_refund_in_history" exists only in the Dictionary face; the key is read past.
  EXPECT_EQ(JSONEncoder().encode(JSONDecoder().decode<VipInfoModel>(kVipInfo)).find("is_refund"), std::string::npos);
}

}  // namespace
}  // namespace qb
