// Every Dictionary-face account model: round trip, and the required checks in declared order.
#include <gtest/gtest.h>

#include <functional>

#include "user/Fixtures.hpp"
#include "user/dict/UserDict.hpp"

namespace qb {
namespace {

using namespace fixtures;

struct ModelRow {
  const char* name;
  std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)> read;
  std::string full;
  // Required keys in check order, each with the reason its absence raises.
  std::vector<std::pair<const char*, const char*>> required;
};

template <class M>
std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)> reader() {
  return [](const JsonMap& map) { return M::initWithJsonObject(map); };
}

const std::vector<ModelRow>& rows() {
  static const std::vector<ModelRow> table{
      {"User", reader<QBAPIUser>(), kUser,
       {{"user_id", "userId is missing in model User"},
        {"uuid", "uuid is missing in model User"},
        {"created_at", "createdAt is missing in model User"},
        {"guest_user", "guestUser is missing in model User"},
        {"vip", "vip is missing in model User"},
        {"expert_consultation_count", "expertConsultationCount is missing in model User"}}},
      {"UserAdditionalData", reader<QBAPIUserAdditionalData>(), kUserAdditional,
       {{"exist_user", "existUser is missing in model UserAdditionalData"},
        {"today_user", "todayUser is missing in model UserAdditionalData"},
        {"is_vip_in_history", "isVipInHistory is missing in model UserAdditionalData"}}},
      {"LoginInfo", reader<QBAPILoginInfo>(), kLoginInfo, {{"login_key", "loginKey is missing in model LoginInfo"}}},
      {"LoginMethod", reader<QBAPILoginMethod>(), kLoginMethod,
       {{"login_name", "loginName is missing in model LoginMethod"}}},
      {"ThirdPartyUserInfo", reader<QBAPIThirdPartyUserInfo>(), kThirdParty, {}},
      {"VipInfo", reader<QBAPIVipInfo>(), kVipInfo, {}},
      {"DeviceInfo", reader<QBAPIDeviceInfo>(), kDevice, {{"device_token", "deviceToken is missing in model DeviceInfo"}}},
      {"DeviceDetailInfo", reader<QBAPIDeviceDetailInfo>(), kDeviceDetail,
       {{"apps_flyer_id", "appsFlyerId is missing in model DeviceDetailInfo"},
        {"country_code", "countryCode is missing in model DeviceDetailInfo"},
        {"language", "language is missing in model DeviceDetailInfo"},
        {"app_version", "appVersion is missing in model DeviceDetailInfo"}}},
      {"IosDeviceData", reader<QBAPIIosDeviceData>(), kIos, {}},
      {"AndroidDeviceData", reader<QBAPIAndroidDeviceData>(), kAndroid, {}},
      {"ClientConfig", reader<QBAPIClientConfig>(), kClientConfig,
       {{"auto_update", "autoUpdate is missing in model ClientConfig"},
        {"expert_default_count", "expertDefaultCount is missing in model ClientConfig"},
        {"timestamp", "timestamp is missing in model ClientConfig"},
        {"legal_config", "legalConfig is missing in model ClientConfig"}}},
      {"AutoUpdate", reader<QBAPIAutoUpdate>(), kAutoUpdate,
       {{"has_update", "hasUpdate is missing in model AutoUpdate"},
        {"force_update", "forceUpdate is missing in model AutoUpdate"}}},
      {"LegalConfig", reader<QBAPILegalConfig>(), kLegal,
       {{"privacy_policy_version", "privacyPolicyVersion is missing in model LegalConfig"}}},
      {"Faq", reader<QBAPIFaq>(), kFaq,
       {{"title", "title is missing in model Faq"},
        {"content", "content is missing in model Faq"},
        {"faq_type", "faqType is missing in model Faq"}}},
  };
  return table;
}

std::string reasonOf(const ModelRow& row, const JsonMap& map) {
  try {
    row.read(map);
  } catch (const ParameterCheckFailException& e) {
    return e.reason();
  }
  return "<none>";
}

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
      EXPECT_EQ(reasonOf(row, map), reason) << row.name << " without " << key;
      map[key] = nullptr;
      EXPECT_EQ(reasonOf(row, map), reason) << row.name << " with null " << key;
    }
    // With every required key gone, the first in check order is named.
    JsonMap bare = parseJsonMap(row.full);
    for (const auto& [key, reason] : row.required) bare.erase(key);
    EXPECT_EQ(reasonOf(row, bare), row.required.empty() ? "<none>" : row.required.front().second) << row.name;
  }
}

TEST(UserDictModels, OptionalFieldsMayAllBeAbsentAndIntegersReadAsZero) {
  for (const auto& row : rows()) {
    JsonMap minimal;
    const JsonMap full = parseJsonMap(row.full);
    for (const auto& [key, reason] : row.required) minimal[key] = full.at(key);
    const JsonMap written = row.read(minimal)->toDictionary();
    for (const auto& member : written) {
      if (!minimal.contains(member.key())) {
        EXPECT_EQ(member.value(), JsonValue(0)) << row.name << ": only integers are written when absent, "
                                                << member.key() << " was";
      }
    }
  }
}

TEST(UserDictModels, ReadingRulesOfTheUserRecord) {
  JsonMap map = parseJsonMap(kUser);
  map.erase("gender");
  map.erase("auto_renew_status");
  auto user = QBAPIUser::initWithJsonObject(map);
  EXPECT_EQ(user->gender(), 0);
  EXPECT_EQ(user->toDictionary().at("auto_renew_status"), JsonValue(0));
  EXPECT_EQ(user->userId()->as_int64(), 9007199254740993);

  map["gender"] = nullptr;
  EXPECT_THROW(QBAPIUser::initWithJsonObject(map), JsonTypeError) << "an integer field never tolerates null";

  map["gender"] = 7;  // unchecked against the enumeration in this face
  for (JsonValue properties : {JsonValue("text"), JsonValue(JsonList{1}), JsonValue(3), JsonValue(nullptr)}) {
    map["properties"] = properties;
    user = QBAPIUser::initWithJsonObject(map);
    EXPECT_FALSE(user->properties()) << "properties keeps only a map";
    EXPECT_EQ(user->gender(), 7);
  }
}

TEST(UserDictModels, NestedRecordsRaiseTheirOwnReasons) {
  JsonMap device = parseJsonMap(kDevice);
  device.erase("device_token");
  device["device_detail_info"] = JsonMap{};
  EXPECT_EQ(reasonOf(rows()[6], device), "deviceToken is missing in model DeviceInfo") << "checked before the detail";
  device["device_token"] = "t";
  EXPECT_EQ(reasonOf(rows()[6], device), "appsFlyerId is missing in model DeviceDetailInfo");
  device["device_detail_info"] = JsonMap{{"apps_flyer_id", "a"}};
  EXPECT_EQ(reasonOf(rows()[6], device), "countryCode is missing in model DeviceDetailInfo");
}

TEST(UserDictModels, VipInfoKeepsEverythingAndChecksNothing) {
  auto empty = QBAPIVipInfo::initWithJsonObject(JsonMap{});
  EXPECT_EQ(toJson(empty->toDictionary()), R"({"vip_level":0})");
  auto vip = QBAPIVipInfo::initWithJsonObject(parseJsonMap(R"({"purchase_subscription_skus": ["a", 1, null]})"));
  EXPECT_EQ(toJson(JsonValue(*vip->purchaseSubscriptionSkus())), R"(["a",1,null])") << "elements kept unchecked";
  EXPECT_THROW(QBAPIVipInfo::initWithJsonObject(parseJsonMap(R"({"purchase_subscription_skus": "a"})")),
               JsonTypeError);
}

}  // namespace
}  // namespace qb
