// Every Dictionary-face account model: round trip, the required checks in declared order, and the
// integer fields.
#include <gtest/gtest.h>

#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <functional>
#include <set>

#include "dict_helpers.hpp"
#include "user/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures;

struct ModelRow {
  const char* name;
  std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)> read;
  std::string full;
  // Required keys in check order, each with the reason its absence raises.
  std::vector<std::pair<const char*, const char*>> required;
  // Integer (enumeration) fields: 0 when absent, converted when present, never null.
  std::vector<const char*> integers;
};

template <class M>
std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)> reader() {
  return [](const JsonMap& map) { return M::initWithJsonObject(map); };
}

// clang-format off
const std::vector<ModelRow>& rows() {
  static const std::vector<ModelRow> table{
      {"User", reader<QBAPIUser>(), kUser,
       {{"user_id", "userId is missing in model User"},
        {"uuid", "uuid is missing in model User"},
        {"created_at", "createdAt is missing in model User"},
        {"guest_user", "guestUser is missing in model User"},
        {"vip", "vip is missing in model User"},
        {"expert_consultation_count", "expertConsultationCount is missing in model User"}},
       {"gender", "auto_renew_status"}},
      {"UserAdditionalData", reader<QBAPIUserAdditionalData>(), kUserAdditional,
       {{"exist_user", "existUser is missing in model UserAdditionalData"},
        {"today_user", "todayUser is missing in model UserAdditionalData"},
        {"is_vip_in_history", "isVipInHistory is missing in model UserAdditionalData"}},
       {}},
      {"LoginInfo", reader<QBAPILoginInfo>(), kLoginInfo,
       {{"login_key", "loginKey is missing in model LoginInfo"}}, {"login_type"}},
      {"LoginMethod", reader<QBAPILoginMethod>(), kLoginMethod,
       {{"login_name", "loginName is missing in model LoginMethod"}}, {"type"}},
      {"ThirdPartyUserInfo", reader<QBAPIThirdPartyUserInfo>(), kThirdParty, {}, {"gender"}},
      {"VipInfo", reader<QBAPIVipInfo>(), kVipInfo, {}, {"vip_level"}},
      {"DeviceInfo", reader<QBAPIDeviceInfo>(), kDevice,
       {{"device_token", "deviceToken is missing in model DeviceInfo"}}, {"device_type"}},
      {"DeviceDetailInfo", reader<QBAPIDeviceDetailInfo>(), kDeviceDetail,
       {{"apps_flyer_id", "appsFlyerId is missing in model DeviceDetailInfo"},
        {"country_code", "countryCode is missing in model DeviceDetailInfo"},
        {"language", "language is missing in model DeviceDetailInfo"},
        {"app_version", "appVersion is missing in model DeviceDetailInfo"}},
       {}},
      {"IosDeviceData", reader<QBAPIIosDeviceData>(), kIos, {}, {}},
      {"AndroidDeviceData", reader<QBAPIAndroidDeviceData>(), kAndroid, {}, {}},
      {"ClientConfig", reader<QBAPIClientConfig>(), kClientConfig,
       {{"auto_update", "autoUpdate is missing in model ClientConfig"},
        {"expert_default_count", "expertDefaultCount is missing in model ClientConfig"},
        {"timestamp", "timestamp is missing in model ClientConfig"},
        {"legal_config", "legalConfig is missing in model ClientConfig"}},
       {}},
      {"AutoUpdate", reader<QBAPIAutoUpdate>(), kAutoUpdate,
       {{"has_update", "hasUpdate is missing in model AutoUpdate"},
        {"force_update", "forceUpdate is missing in model AutoUpdate"}},
       {}},
      {"LegalConfig", reader<QBAPILegalConfig>(), kLegal,
       {{"privacy_policy_version", "privacyPolicyVersion is missing in model LegalConfig"}}, {}},
      {"Faq", reader<QBAPIFaq>(), kFaq,
       {{"title", "title is missing in model Faq"},
        {"content", "content is missing in model Faq"},
        {"faq_type", "faqType is missing in model Faq"}},
       {}},
  };
  return table;
}
// clang-format on

TEST(UserDictModels, FullRepliesRoundTripExactly) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    const auto model = row.read(full);
    EXPECT_EQ(model->modelName(), row.name);
    EXPECT_EQ(model->toDictionary(), full) << row.name;
    EXPECT_EQ(parseJsonMap(*model->toJsonString()), full) << row.name;
  }
}

TEST(UserDictModels, EachMissingOrNullRequiredFieldRaisesItsReason) {
  for (const auto& row : rows()) {
    for (const auto& [key, reason] : row.required) {
      JsonMap map = parseJsonMap(row.full);
      map.erase(key);
      EXPECT_EQ(reasonOf([&] { row.read(map); }), reason) << row.name << " without " << key;
      map[key] = nullptr;
      EXPECT_EQ(reasonOf([&] { row.read(map); }), reason) << row.name << " with null " << key;
    }
    // With every required key gone, the first in check order is named.
    JsonMap bare = parseJsonMap(row.full);
    for (const auto& [key, reason] : row.required) bare.erase(key);
    EXPECT_EQ(reasonOf([&] { row.read(bare); }), row.required.empty() ? "<none>" : row.required.front().second)
        << row.name;
  }
}

TEST(UserDictModels, IntegersReadAsZeroWhenAbsentAndAreConvertedButNeverNull) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    // With only the required keys given, exactly those and the integers (as 0) are written back.
    JsonMap minimal;
    std::set<std::string> expected(row.integers.begin(), row.integers.end());
    for (const auto& [key, reason] : row.required) {
      minimal[key] = full.at(key);
      expected.insert(key);
    }
    const JsonMap written = row.read(minimal)->toDictionary();
    std::set<std::string> keys;
    for (const auto& member : written) keys.insert(std::string(member.key()));
    EXPECT_EQ(keys, expected) << row.name;
    for (const char* key : row.integers) {
      EXPECT_EQ(written.at(key), JsonValue(0)) << row.name << "." << key;
      JsonMap map = full;
      map[key] = 2.9;
      EXPECT_EQ(row.read(map)->toDictionary().at(key), JsonValue(2)) << row.name << "." << key << " is an integer";
      map[key] = nullptr;
      EXPECT_THROW(row.read(map), JsonTypeError) << row.name << "." << key << " never tolerates null";
    }
  }
}

TEST(UserDictModels, ReadingRulesOfTheUserRecord) {
  JsonMap map = parseJsonMap(kUser);
  EXPECT_EQ(QBAPIUser::initWithJsonObject(map)->userId()->as_int64(), 9007199254740993) << "above 2^53, exact";

  map["gender"] = 7;  // unchecked against the enumeration in this face
  for (JsonValue properties : {JsonValue("text"), JsonValue(JsonList{1}), JsonValue(3), JsonValue(nullptr)}) {
    map["properties"] = properties;
    auto user = QBAPIUser::initWithJsonObject(map);
    EXPECT_FALSE(user->properties()) << "properties keeps only a map";
    EXPECT_EQ(user->gender(), 7);
  }
}

TEST(UserDictModels, NestedRecordsRaiseTheirOwnErrors) {
  JsonMap device = parseJsonMap(kDevice);
  device.erase("device_token");
  device["device_detail_info"] = JsonMap{};
  auto reason = [&] { return reasonOf([&] { QBAPIDeviceInfo::initWithJsonObject(device); }); };
  EXPECT_EQ(reason(), "deviceToken is missing in model DeviceInfo") << "checked before the detail is read";
  device["device_token"] = "t";
  EXPECT_EQ(reason(), "appsFlyerId is missing in model DeviceDetailInfo");
  device["device_detail_info"] = JsonMap{{"apps_flyer_id", "a"}};
  EXPECT_EQ(reason(), "countryCode is missing in model DeviceDetailInfo");

  JsonMap login = parseJsonMap(kLoginInfo);
  login["third_party_user_info"].as_object()["gender"] = nullptr;
  EXPECT_THROW(QBAPILoginInfo::initWithJsonObject(login), JsonTypeError);
  login["third_party_user_info"] = "not a map";
  EXPECT_THROW(QBAPILoginInfo::initWithJsonObject(login), JsonTypeError);
}

TEST(UserDictModels, VipInfoKeepsEverythingAndChecksNothing) {
  auto empty = QBAPIVipInfo::initWithJsonObject(JsonMap{});
  EXPECT_EQ(toJson(empty->toDictionary()), R"({"vip_level":0})");
  auto vip = QBAPIVipInfo::initWithJsonObject(parseJsonMap(R"({"purchase_subscription_skus": ["a", 1, null]})"));
  EXPECT_EQ(toJson(JsonValue(*vip->purchaseSubscriptionSkus())), R"(["a",1,null])") << "elements kept unchecked";
  EXPECT_THROW(QBAPIVipInfo::initWithJsonObject(parseJsonMap(R"({"purchase_subscription_skus": "a"})")), JsonTypeError);
}

}  // namespace
}  // namespace qb
