// Every Dictionary-face account message: what it tells the host, the parameters it builds, each missing
// required parameter, and the reply keys it reads.
#include <gtest/gtest.h>

#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <cstring>
#include <functional>

#include "dict_helpers.hpp"
#include "user/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures;

std::shared_ptr<QBAPILoginInfo> loginInfo() {
  return QBAPILoginInfo::initWithJsonObject(parseJsonMap(R"({"login_type": 3, "login_key": "a@b.c"})"));
}
std::shared_ptr<QBAPIDeviceInfo> deviceInfo() {
  return QBAPIDeviceInfo::initWithJsonObject(parseJsonMap(R"({"device_type": 2, "device_token": "t"})"));
}
JsonValue text(const char* s) { return JsonValue(s); }

using ResultProbe = std::function<std::vector<bool>(QBMessageBase&)>;

// Which of a message's results are present, in the order of the getters given.
template <class M, class... Getters>
ResultProbe present(Getters... getters) {
  return [=](QBMessageBase& message) {
    auto& m = dynamic_cast<M&>(message);
    return std::vector<bool>{static_cast<bool>((m.*getters)())...};
  };
}

struct MessageRow {
  std::function<std::shared_ptr<QBMessageBase>()> full;  // every parameter set
  const char* path;    // names the row; what each face tells the host is checked against the catalogue
  const char* params;  // compact JSON of full()->getParams()
  // Required parameters in check order, each with the reason its absence raises.
  std::vector<std::pair<Mutator, const char*>> required;
  std::string reply;                    // holds every result key
  std::vector<const char*> resultKeys;  // in the order `results` reports them
  ResultProbe results;                  // null for a message that reads nothing
};

const char* const kLoginText = "\"{\\n  \\\"login_type\\\": 3,\\n  \\\"login_key\\\": \\\"a@b.c\\\"\\n}\"";
const char* const kDeviceText = "\"{\\n  \\\"device_type\\\": 2,\\n  \\\"device_token\\\": \\\"t\\\"\\n}\"";

std::string withRecords(const char* pattern) {
  std::string out = pattern;
  for (auto [mark, value] : {std::pair{"LOGIN", kLoginText}, std::pair{"DEVICE", kDeviceText}}) {
    for (auto at = out.find(mark); at != std::string::npos; at = out.find(mark)) out.replace(at, strlen(mark), value);
  }
  return out;
}

using Init = QBUserInitialiseMessage;
using Login = QBUserLoginOrCreateMessage;
using GetCode = QBUserGetVerifyCodeMessage;
using CheckCode = QBUserCheckVerifyCodeMessage;
using Reset = QBUserResetPasswordAndLoginMessage;
using GetUser = QBUserGetUserMessage;
using Update = QBUserUpdateMessage;
using DeviceUpdate = QBUserUpdateDeviceInfoMessage;
using Conversion = QBUserUpdateUserConversionMessage;
using PushInfo = QBUserUpdateUserDevicePushInfoMessage;
using Properties = QBUserUpdateUserPropertiesMessage;
using TimeZone = QBUserUpdateUserTimeZoneMessage;
using GetConfig = QBUserGetConfigMessage;
using GetFaq = QBUserGetFaqMessage;

// clang-format off
const std::vector<MessageRow>& rows() {
  static const std::vector<MessageRow> table{
      {[] { return Init::initWithData(loginInfo(), deviceInfo(), 2, text("US")); },
       "v3/user/initialise",
       R"({"login_info":LOGIN,"device_info":DEVICE,"language_code":2,"country_code":"US"})",
       {{unset(&Init::setCountryCode), "countryCode is missing in model Initialise"}},
       kInitialiseReply,
       {"user", "user_additional_data", "access_token", "config", "other_configs", "app_server_time", "country"},
       present<Init>(&Init::user, &Init::userAdditionalData, &Init::accessToken, &Init::config, &Init::otherConfigs,
                     &Init::appServerTime, &Init::country)},
      {[] { return Login::initWithData(loginInfo(), deviceInfo(), 1); },
       "v3/user/login_or_create",
       R"({"login_info":LOGIN,"device_info":DEVICE,"login_action":1})",
       {{unset(&Login::setLoginInfo), "loginInfo is missing in model LoginOrCreate"},
        {unset(&Login::setDeviceInfo), "deviceInfo is missing in model LoginOrCreate"}},
       kLoginReply, {"user", "user_additional_data", "access_token"},
       present<Login>(&Login::user, &Login::userAdditionalData, &Login::accessToken)},
      {[] { return GetCode::initWithData(text("a@b.c"), 0); },
       "v3/user/get_verify_code", R"({"email":"a@b.c","language_code":0})",
       {{unset(&GetCode::setEmail), "email is missing in model GetVerifyCode"}}, "{}", {}, nullptr},
      {[] { return CheckCode::initWithData(text("a@b.c"), text("1234")); },
       "v3/user/check_verify_code", R"({"email":"a@b.c","verify_code":"1234"})",
       {{unset(&CheckCode::setEmail), "email is missing in model CheckVerifyCode"},
        {unset(&CheckCode::setVerifyCode), "verifyCode is missing in model CheckVerifyCode"}},
       "{}", {}, nullptr},
      {[] { return Reset::initWithData(text("a@b.c"), text("1234"), text("pw"), deviceInfo()); },
       "v3/user/reset_password_and_login",
       R"({"email":"a@b.c","verify_code":"1234","password":"pw","device_info":DEVICE})",
       {{unset(&Reset::setEmail), "email is missing in model ResetPasswordAndLogin"},
        {unset(&Reset::setVerifyCode), "verifyCode is missing in model ResetPasswordAndLogin"},
        {unset(&Reset::setPassword), "password is missing in model ResetPasswordAndLogin"},
        {unset(&Reset::setDeviceInfo), "deviceInfo is missing in model ResetPasswordAndLogin"}},
       kLoginReply, {"user", "user_additional_data", "access_token"},
       present<Reset>(&Reset::user, &Reset::userAdditionalData, &Reset::accessToken)},
      {[] { return QBUserDeleteAccountMessage::initWithData(); },
       "v3/user/delete_account", "{}", {}, "{}", {}, nullptr},
      {[] { return GetUser::initWithData(); },
       "v3/user/get", "{}", {},
       kLoginReply, {"user", "user_additional_data"}, present<GetUser>(&GetUser::user, &GetUser::userAdditionalData)},
      {[] { return Update::initWithData(text("Fern"), std::vector<std::byte>{std::byte{1}}, 1); },
       "v3/user/update", R"({"nickname":"Fern","gender":1})", {},
       R"({"avatar_url": "https://a.example/2.png"})", {"avatar_url"}, present<Update>(&Update::avatarUrl)},
      {[] { return QBUserUpdateAdditionalDataMessage::initWithData(JsonValue(true), text("B")); },
       "v3/user/update_additional_data",
       R"({"email_notification_enabled":true,"grows_price_label":"B"})", {}, "{}", {}, nullptr},
      {[] { return DeviceUpdate::initWithData(deviceInfo()); },
       "v3/user/update_device_info", R"({"device_info":DEVICE})",
       {{unset(&DeviceUpdate::setDeviceInfo), "deviceInfo is missing in model UpdateDeviceInfo"}}, "{}", {}, nullptr},
      {[] {
         return Conversion::initWithData(JsonValue(false), text("m"), text("c"), text("ci"), JsonValue(125),
                                         JsonValue(1700000000), text("ch"), text("k"), text("ab"), text("ad"),
                                         text("at"));
       },
       "v3/user/update_user_conversion",
       R"({"is_organic":false,"media_source":"m","campaign":"c","campaign_id":"ci","cost_cents_usd":125,)"
       R"("install_time":1700000000,"channel":"ch","keywords":"k","abset_id":"ab","ad_id":"ad","ad_type":"at"})",
       {{unset(&Conversion::setIsOrganic), "isOrganic is missing in model UpdateUserConversion"}}, "{}", {}, nullptr},
      {[] { return PushInfo::initWithData(text("Europe/Berlin"), text("pk"), 6, text("DE")); },
       "v3/user/update_user_device_push_info",
       R"({"time_zone":"Europe/Berlin","push_key":"pk","language_code":6,"country_code":"DE"})", {}, "{}", {}, nullptr},
      {[] { return Properties::initWithData(text("k"), text("v")); },
       "v3/user/update_user_properties", R"({"key":"k","value":"v"})",
       {{unset(&Properties::setKey), "key is missing in model UpdateUserProperties"},
        {unset(&Properties::setValue), "value is missing in model UpdateUserProperties"}},
       "{}", {}, nullptr},
      {[] { return TimeZone::initWithData(text("UTC")); },
       "v3/user/update_user_time_zone", R"({"time_zone":"UTC"})",
       {{unset(&TimeZone::setTimeZone), "timeZone is missing in model UpdateUserTimeZone"}}, "{}", {}, nullptr},
      {[] { return GetConfig::initWithData(1, text("US")); },
       "v3/user/get_config", R"({"language_code":1,"country_code":"US"})",
       {{unset(&GetConfig::setCountryCode), "countryCode is missing in model GetConfig"}},
       R"({"config": )" + kClientConfig + R"(, "other_configs": [1]})", {"config", "other_configs"},
       present<GetConfig>(&GetConfig::config, &GetConfig::otherConfigs)},
      {[] { return GetFaq::initWithData(1, 2); },
       "v3/user/get_faq", R"({"language_code":1,"device_type":2})", {},
       R"({"faqs": [)" + kFaq + "]}", {"faqs"}, present<GetFaq>(&GetFaq::faqs)},
  };
  return table;
}
// clang-format on

TEST(UserDictMessages, BuildTheirParameters) {
  for (const auto& row : rows()) {
    const auto message = row.full();
    SCOPED_TRACE(row.path);
    EXPECT_EQ(message->api(), row.path);
    EXPECT_EQ(toJson(message->getParams()), withRecords(row.params));
    if (std::string_view(row.path) != "v3/user/update") {
      EXPECT_TRUE(message->mimeBodies().empty());
    }
  }
}

TEST(UserDictMessages, EachMissingRequiredParameterRaisesItsReason) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.path);
    expectRequiredParametersRaise(row.full, row.required);
  }
}

TEST(UserDictMessages, ParseResponseReadsEachResultKey) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.path);
    const JsonMap reply = parseJsonMap(row.reply);
    const auto message = row.full();
    EXPECT_EQ(&message->parseResponse(reply), message.get());
    if (!row.results) continue;
    EXPECT_EQ(row.results(*message), std::vector<bool>(row.resultKeys.size(), true));
    // A fresh message given the reply without one key has that result, and only that one, empty.
    for (std::size_t i = 0; i < row.resultKeys.size(); ++i) {
      JsonMap without = reply;
      without.erase(row.resultKeys[i]);
      const auto fresh = row.full();
      fresh->parseResponse(without);
      std::vector<bool> expected(row.resultKeys.size(), true);
      expected[i] = false;
      EXPECT_EQ(row.results(*fresh), expected) << "without " << row.resultKeys[i];
    }
  }
}

TEST(UserDictMessages, OptionalParametersAreLeftOutAndIntegersAlwaysSent) {
  EXPECT_EQ(toJson(QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, text("US"))->getParams()),
            R"({"language_code":0,"country_code":"US"})");
  EXPECT_EQ(toJson(QBUserUpdateUserDevicePushInfoMessage::initWithData({}, {}, 0, {})->getParams()),
            R"({"language_code":0})");
  EXPECT_EQ(toJson(QBUserUpdateAdditionalDataMessage::initWithData({}, {})->getParams()), "{}");
  EXPECT_EQ(
      toJson(QBUserUpdateUserConversionMessage::initWithData(JsonValue(true), {}, {}, {}, {}, {}, {}, {}, {}, {}, {})
                 ->getParams()),
      R"({"is_organic":true})");
}

TEST(UserDictMessages, UpdateSendsTheAvatarOnlyAsAMultipartBodyAndGenderAlways) {
  const std::vector<std::byte> png{std::byte{0x89}, std::byte{'P'}, std::byte{0}};
  auto update = QBUserUpdateMessage::initWithData(std::nullopt, png, 0);
  EXPECT_EQ(toJson(update->getParams()), R"({"gender":0})");
  const auto bodies = update->mimeBodies();
  ASSERT_EQ(bodies.size(), 1u);
  EXPECT_EQ(bodies[0], (QBMimeBody{"application/octet-stream", "avatar", "file", png}));
  EXPECT_TRUE(QBUserUpdateMessage::initWithData(text("n"), std::nullopt, 0)->mimeBodies().empty());
}

TEST(UserDictMessages, LoginRepliesFillResultsAndNestedFailuresRaise) {
  auto login = QBUserLoginOrCreateMessage::initWithData(loginInfo(), deviceInfo(), 0);
  login->parseResponse(parseJsonMap(kLoginReply));
  EXPECT_EQ(login->user()->userId()->as_int64(), 9007199254740993);
  EXPECT_EQ(*login->accessToken(), JsonValue("token-1"));
  EXPECT_EQ(*login->userAdditionalData()->growsPriceLabel(), JsonValue("A"));

  login->parseResponse(parseJsonMap(R"({"user": null})"));
  EXPECT_TRUE(login->user()) << "a nested result keeps its value";
  EXPECT_FALSE(login->accessToken()) << "a plain result is cleared";

  auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, text("US"));
  init->parseResponse(parseJsonMap(kInitialiseReply));
  EXPECT_EQ(init->config()->legalConfig()->privacyPolicyVersion()->as_int64(), 7);
  EXPECT_EQ(*init->appServerTime(), JsonValue(1700000000.5));
  EXPECT_EQ(*init->otherConfigs(), parseJson(R"({"x": 1})"));
  EXPECT_EQ(*init->country(), JsonValue("US"));

  EXPECT_EQ(reasonOf([&] { init->parseResponse(parseJsonMap(R"({"user": {"user_id": 1}})")); }),
            "uuid is missing in model User");
}

TEST(UserDictMessages, FaqListsAreReadElementByElement) {
  auto faq = QBUserGetFaqMessage::initWithData(0, 1);
  faq->parseResponse(parseJsonMap("{\"faqs\": [" + kFaq + "," + kFaq + "]}"));
  ASSERT_EQ(faq->faqs()->size(), 2u);
  EXPECT_EQ(*(*faq->faqs())[1]->title(), JsonValue("How?"));
  faq->parseResponse(parseJsonMap(R"({"faqs": null})"));
  EXPECT_EQ(faq->faqs()->size(), 2u) << "null leaves the list untouched";
  EXPECT_THROW(faq->parseResponse(parseJsonMap(R"({"faqs": [null]})")), JsonTypeError);
  EXPECT_EQ(reasonOf([&] { faq->parseResponse(parseJsonMap(R"({"faqs": [{"title": "t", "content": "c"}]})")); }),
            "faqType is missing in model Faq");
}

}  // namespace
}  // namespace qb
