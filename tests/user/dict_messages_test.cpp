// Every Dictionary-face account message: what it tells the host, the parameters it builds, the first
// missing parameter, and the replies it reads.
#include <gtest/gtest.h>

#include <cstring>
#include <functional>

#include "user/Fixtures.hpp"
#include "user/dict/UserDict.hpp"

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

struct MessageRow {
  std::function<std::shared_ptr<QBMessageBase>()> full;     // every parameter set
  std::function<std::shared_ptr<QBMessageBase>()> missing;  // the first required parameter left out, or null
  const char* path;
  const char* verb;
  bool needAuth, mustAuth;
  const char* params;  // compact JSON of full()->getParams()
  const char* reason;  // of missing()->getParams()
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

const std::vector<MessageRow>& rows() {
  using V = std::optional<JsonValue>;
  static const std::vector<MessageRow> table{
      {[] { return QBUserInitialiseMessage::initWithData(loginInfo(), deviceInfo(), 2, text("US")); },
       [] { return QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, std::nullopt); },
       "v3/user/initialise", "post", true, false,
       R"({"login_info":LOGIN,"device_info":DEVICE,"language_code":2,"country_code":"US"})",
       "countryCode is missing in model Initialise"},
      {[] { return QBUserLoginOrCreateMessage::initWithData(loginInfo(), deviceInfo(), 1); },
       [] { return QBUserLoginOrCreateMessage::initWithData(nullptr, nullptr, 0); }, "v3/user/login_or_create", "post",
       true, false, R"({"login_info":LOGIN,"device_info":DEVICE,"login_action":1})",
       "loginInfo is missing in model LoginOrCreate"},
      {[] { return QBUserGetVerifyCodeMessage::initWithData(text("a@b.c"), 0); },
       [] { return QBUserGetVerifyCodeMessage::initWithData(std::nullopt, 3); }, "v3/user/get_verify_code", "post",
       false, false, R"({"email":"a@b.c","language_code":0})", "email is missing in model GetVerifyCode"},
      {[] { return QBUserCheckVerifyCodeMessage::initWithData(text("a@b.c"), text("1234")); },
       [] { return QBUserCheckVerifyCodeMessage::initWithData(text("a@b.c"), std::nullopt); },
       "v3/user/check_verify_code", "post", false, false, R"({"email":"a@b.c","verify_code":"1234"})",
       "verifyCode is missing in model CheckVerifyCode"},
      {[] {
         return QBUserResetPasswordAndLoginMessage::initWithData(text("a@b.c"), text("1234"), text("pw"), deviceInfo());
       },
       [] { return QBUserResetPasswordAndLoginMessage::initWithData(text("a@b.c"), text("1"), text("p"), nullptr); },
       "v3/user/reset_password_and_login", "post", false, false,
       R"({"email":"a@b.c","verify_code":"1234","password":"pw","device_info":DEVICE})",
       "deviceInfo is missing in model ResetPasswordAndLogin"},
      {[] { return QBUserDeleteAccountMessage::initWithData(); }, nullptr, "v3/user/delete_account", "post", true, true,
       "{}", nullptr},
      {[] { return QBUserGetUserMessage::initWithData(); }, nullptr, "v3/user/get", "get", true, true, "{}", nullptr},
      {[] { return QBUserUpdateMessage::initWithData(text("Fern"), std::vector<std::byte>{std::byte{1}}, 1); },
       nullptr, "v3/user/update", "post", true, true, R"({"nickname":"Fern","gender":1})", nullptr},
      {[] { return QBUserUpdateAdditionalDataMessage::initWithData(JsonValue(true), text("B")); },
       nullptr, "v3/user/update_additional_data", "post", true, true,
       R"({"email_notification_enabled":true,"grows_price_label":"B"})", nullptr},
      {[] { return QBUserUpdateDeviceInfoMessage::initWithData(deviceInfo()); },
       [] { return QBUserUpdateDeviceInfoMessage::initWithData(nullptr); }, "v3/user/update_device_info", "post", true,
       true, R"({"device_info":DEVICE})", "deviceInfo is missing in model UpdateDeviceInfo"},
      {[] {
         return QBUserUpdateUserConversionMessage::initWithData(JsonValue(false), text("m"), text("c"), text("ci"),
                                                                JsonValue(125), JsonValue(1700000000), text("ch"),
                                                                text("k"), text("ab"), text("ad"), text("at"));
       },
       [] {
         return QBUserUpdateUserConversionMessage::initWithData(std::nullopt, text("m"), text("c"), text("ci"),
                                                                JsonValue(1), JsonValue(1), text("ch"), text("k"),
                                                                text("ab"), text("ad"), text("at"));
       },
       "v3/user/update_user_conversion", "post", true, true,
       R"({"is_organic":false,"media_source":"m","campaign":"c","campaign_id":"ci","cost_cents_usd":125,)"
       R"("install_time":1700000000,"channel":"ch","keywords":"k","abset_id":"ab","ad_id":"ad","ad_type":"at"})",
       "isOrganic is missing in model UpdateUserConversion"},
      {[] { return QBUserUpdateUserDevicePushInfoMessage::initWithData(text("Europe/Berlin"), text("pk"), 6, text("DE")); },
       nullptr, "v3/user/update_user_device_push_info", "post", true, true,
       R"({"time_zone":"Europe/Berlin","push_key":"pk","language_code":6,"country_code":"DE"})", nullptr},
      {[] { return QBUserUpdateUserPropertiesMessage::initWithData(text("k"), text("v")); },
       [] { return QBUserUpdateUserPropertiesMessage::initWithData(text("k"), V{}); },
       "v3/user/update_user_properties", "post", true, true, R"({"key":"k","value":"v"})",
       "value is missing in model UpdateUserProperties"},
      {[] { return QBUserUpdateUserTimeZoneMessage::initWithData(text("UTC")); },
       [] { return QBUserUpdateUserTimeZoneMessage::initWithData(V{}); }, "v3/user/update_user_time_zone", "post", true,
       true, R"({"time_zone":"UTC"})", "timeZone is missing in model UpdateUserTimeZone"},
      {[] { return QBUserGetConfigMessage::initWithData(1, text("US")); },
       [] { return QBUserGetConfigMessage::initWithData(1, V{}); }, "v3/user/get_config", "post", true, true,
       R"({"language_code":1,"country_code":"US"})", "countryCode is missing in model GetConfig"},
      {[] { return QBUserGetFaqMessage::initWithData(1, 2); }, nullptr, "v3/user/get_faq", "get", true, true,
       R"({"language_code":1,"device_type":2})", nullptr},
  };
  return table;
}

TEST(UserDictMessages, DescribeTheCallAndBuildTheirParameters) {
  for (const auto& row : rows()) {
    const auto message = row.full();
    SCOPED_TRACE(row.path);
    EXPECT_EQ(message->api(), row.path);
    EXPECT_EQ(message->methods(), std::vector<std::string>{row.verb});
    EXPECT_TRUE(message->forceHttps());
    EXPECT_FALSE(message->binaryResponse());
    EXPECT_EQ(message->needAuth(), row.needAuth);
    EXPECT_EQ(message->mustAuth(), row.mustAuth);
    EXPECT_EQ(toJson(message->getParams()), withRecords(row.params));
    if (row.missing) {
      try {
        row.missing()->getParams();
        ADD_FAILURE() << "no exception";
      } catch (const ParameterCheckFailException& e) {
        EXPECT_EQ(e.reason(), row.reason);
      }
    }
    if (std::string_view(row.path) != "v3/user/update") {
      EXPECT_TRUE(message->mimeBodies().empty());
    }
  }
}

TEST(UserDictMessages, OptionalParametersAreLeftOutAndIntegersAlwaysSent) {
  EXPECT_EQ(toJson(QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, text("US"))->getParams()),
            R"({"language_code":0,"country_code":"US"})");
  EXPECT_EQ(toJson(QBUserUpdateUserDevicePushInfoMessage::initWithData({}, {}, 0, {})->getParams()),
            R"({"language_code":0})");
  EXPECT_EQ(toJson(QBUserUpdateAdditionalDataMessage::initWithData({}, {})->getParams()), "{}");
  EXPECT_EQ(toJson(QBUserUpdateUserConversionMessage::initWithData(JsonValue(true), {}, {}, {}, {}, {}, {}, {}, {}, {}, {})
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

  try {
    init->parseResponse(parseJsonMap(R"({"user": {"user_id": 1}})"));
    ADD_FAILURE();
  } catch (const ParameterCheckFailException& e) {
    EXPECT_EQ(e.reason(), "uuid is missing in model User");
  }
}

TEST(UserDictMessages, FaqListsAreReadElementByElement) {
  auto faq = QBUserGetFaqMessage::initWithData(0, 1);
  faq->parseResponse(parseJsonMap("{\"faqs\": [" + kFaq + "," + kFaq + "]}"));
  ASSERT_EQ(faq->faqs()->size(), 2u);
  EXPECT_EQ(*(*faq->faqs())[1]->title(), JsonValue("How?"));
  faq->parseResponse(parseJsonMap(R"({"faqs": null})"));
  EXPECT_EQ(faq->faqs()->size(), 2u) << "null leaves the list untouched";
  EXPECT_THROW(faq->parseResponse(parseJsonMap(R"({"faqs": [null]})")), JsonTypeError);
  try {
    faq->parseResponse(parseJsonMap(R"({"faqs": [{"title": "t", "content": "c"}]})"));
    ADD_FAILURE();
  } catch (const ParameterCheckFailException& e) {
    EXPECT_EQ(e.reason(), "faqType is missing in model Faq");
  }
}

}  // namespace
}  // namespace qb
