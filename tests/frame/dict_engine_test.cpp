// The Dictionary-face engine, exercised through the configuration records and the get_config message.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIAutoUpdate.hpp>
#include <QBComponentAPI/user/dict/QBAPIClientConfig.hpp>
#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>
#include <QBComponentAPI/user/dict/QBAPILegalConfig.hpp>
#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <atomic>
#include <functional>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

namespace qb {
namespace {

std::string reasonOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const ParameterCheckFailException& e) {
    EXPECT_EQ(e.name(), "ParameterCheckFailException");
    EXPECT_EQ(std::string(e.what()), e.reason());
    return e.reason();
  }
  return "<no exception>";
}

const char* const kConfig = R"({
  "auto_update": {"has_update": true, "force_update": false},
  "expert_default_count": 3, "timestamp": 1700000000,
  "legal_config": {"agreement_version": 2, "privacy_policy_version": 5, "privacy_policy_url": "https://p"}
})";

TEST(DictEngine, FirstMissingRequiredFieldInDeclaredOrderNamesTheReason) {
  struct Case {
    const char* json;
    const char* reason;
  } cases[] = {
      {R"({})", "hasUpdate is missing in model AutoUpdate"},
      {R"({"has_update": null, "force_update": true})", "hasUpdate is missing in model AutoUpdate"},
      {R"({"force_update": true, "has_update": false})", "<no exception>"},
      {R"({"has_update": false})", "forceUpdate is missing in model AutoUpdate"},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(reasonOf([&] { QBAPIAutoUpdate::initWithJsonObject(parseJsonMap(c.json)); }), c.reason) << c.json;
  }
  struct ConfigCase {
    const char* json;
    const char* reason;
  } configCases[] = {
      {R"({"auto_update": null})", "autoUpdate is missing in model ClientConfig"},
      // The nested record is read before the outer check, so its own reason comes first.
      {R"({"auto_update": {}})", "hasUpdate is missing in model AutoUpdate"},
      {R"({"auto_update": {"has_update": 1, "force_update": 0}, "timestamp": 1})",
       "expertDefaultCount is missing in model ClientConfig"},
      {R"({"auto_update": {"has_update": 1, "force_update": 0}, "expert_default_count": 1, "timestamp": 1,
           "legal_config": {"agreement_version": 1}})",
       "privacyPolicyVersion is missing in model LegalConfig"},
  };
  for (const auto& c : configCases) {
    EXPECT_EQ(reasonOf([&] { QBAPIClientConfig::initWithJsonObject(parseJsonMap(c.json)); }), c.reason) << c.json;
  }
}

TEST(DictEngine, ValuesAreKeptExactlyAsTheReplyGaveThem) {
  // No type checks on plain values: a text where a number is expected stays a text.
  auto legal = QBAPILegalConfig::initWithJsonObject(
      parseJsonMap(R"({"privacy_policy_version": "5", "agreement_version": 9007199254740993,
                       "next_agreement_available_at": 1700000000.123456789})"));
  EXPECT_EQ(*legal->privacyPolicyVersion(), JsonValue("5"));
  EXPECT_EQ(legal->agreementVersion()->as_int64(), 9007199254740993);
  EXPECT_FALSE(legal->agreementUrl());
  const JsonMap round = parseJsonMap(toJson(legal->toDictionary()));
  EXPECT_EQ(round.at("agreement_version").as_int64(), 9007199254740993);
  EXPECT_EQ(round.at("next_agreement_available_at").as_double(), 1700000000.123456789);
}

TEST(DictEngine, ToDictionaryWritesPresentFieldsAndNestedModelsAsMaps) {
  const JsonMap source = parseJsonMap(kConfig);
  auto config = QBAPIClientConfig::initWithJsonObject(source);
  EXPECT_EQ(config->toDictionary(), source);
  auto minimal = QBAPIAutoUpdate::initWithJsonObject(parseJsonMap(R"({"has_update": true, "force_update": 1})"));
  EXPECT_EQ(minimal->toDictionary().size(), 2u);
  // Setting a property to absent removes its key.
  config->setShareAppUrl(std::nullopt);
  config->setExpertDefaultCount(JsonValue(7));
  EXPECT_FALSE(config->toDictionary().contains("share_app_url"));
  EXPECT_EQ(config->toDictionary().at("expert_default_count"), JsonValue(7));
}

TEST(DictEngine, ToJsonStringIsIndentedAndNothingWhenTheWriterFails) {
  auto update = QBAPIAutoUpdate::initWithJsonObject(parseJsonMap(R"({"has_update": true, "force_update": false})"));
  EXPECT_EQ(*update->toJsonString(), "{\n  \"has_update\": true,\n  \"force_update\": false\n}");
  update->setHasUpdate(JsonValue(std::nan("")));
  EXPECT_FALSE(update->toJsonString());
  update->setHasUpdate(JsonValue("\xed\xa0\x80"));  // an encoded lone surrogate is not UTF-8
  EXPECT_FALSE(update->toJsonString());
}

TEST(DictEngine, ValuesOfTheWrongShapeRaiseJsonTypeError) {
  for (const char* json : {R"({"auto_update": "yes"})", R"({"auto_update": [1]})"}) {
    EXPECT_THROW(QBAPIClientConfig::initWithJsonObject(parseJsonMap(json)), JsonTypeError) << json;
  }
  EXPECT_THROW(QBAPIAutoUpdate::initWithJsonObject(JsonValue(1)), JsonTypeError);
}

TEST(DictEngine, IntegerConversion) {
  struct Case {
    const char* json;
    std::int64_t expected;
  } cases[] = {
      {"42", 42},
      {"-7", -7},
      {"18446744073709551615", INT64_MAX},
      {"2.9", 2},
      {"-2.9", -2},
      {"1e30", INT64_MAX},
      {"-1e30", INT64_MIN},
      {"true", 1},
      {"false", 0},
      {R"("  -12abc")", -12},
      {R"("+5")", 5},
      {R"("abc")", 0},
      {R"("")", 0},
      {R"("99999999999999999999")", INT64_MAX},
      {R"("-99999999999999999999")", INT64_MIN},
      {R"("-9223372036854775808")", INT64_MIN},
  };
  for (const auto& c : cases) EXPECT_EQ(toInteger(parseJson(c.json)), c.expected) << c.json;
  for (const char* bad : {"null", "[]", "{}"}) EXPECT_THROW(toInteger(parseJson(bad), "k"), JsonTypeError) << bad;
  EXPECT_EQ(toInteger(JsonValue(std::nan(""))), 0);
}

TEST(DictEngine, GetConfigMessageDescribesTheCall) {
  auto message = QBUserGetConfigMessage::initWithData(0, JsonValue("US"));
  EXPECT_EQ(message->api(), "v3/user/get_config");
  EXPECT_EQ(message->methods(), std::vector<std::string>{"post"});
  EXPECT_TRUE(message->forceHttps());
  EXPECT_FALSE(message->binaryResponse());
  EXPECT_TRUE(message->needAuth());
  EXPECT_TRUE(message->mustAuth());
  EXPECT_TRUE(message->mimeBodies().empty());
  // The language code is always sent, 0 included; parameters come out equal each time.
  EXPECT_EQ(toJson(message->getParams()), R"({"language_code":0,"country_code":"US"})");
  EXPECT_EQ(message->getParams(), message->getParams());

  message->setCountryCode(std::nullopt);
  EXPECT_EQ(reasonOf([&] { message->getParams(); }), "countryCode is missing in model GetConfig");
  message->setCountryCode(JsonValue(nullptr));
  EXPECT_EQ(toJson(message->getParams()), R"({"language_code":0,"country_code":null})")
      << "a value the app set is sent as it is";
}

TEST(DictEngine, ParseResponseFillsKeepsAndClearsResults) {
  auto message = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
  QBMessageBase& same = message->parseResponse(parseJsonMap(std::string(R"({"config": )") + kConfig +
                                                            R"(, "other_configs": {"a": [1, 18446744073709551615]}})"));
  EXPECT_EQ(&same, message.get());
  ASSERT_TRUE(message->config());
  EXPECT_EQ(message->config()->legalConfig()->privacyPolicyVersion()->as_int64(), 5);
  EXPECT_EQ(toJson(*message->otherConfigs()), R"({"a":[1,18446744073709551615]})");

  // A second reply without the keys keeps the nested result and clears the plain one.
  auto config = message->config();
  message->parseResponse(parseJsonMap(R"({"config": null})"));
  EXPECT_EQ(message->config(), config);
  EXPECT_FALSE(message->otherConfigs());

  // Nested failures propagate with the nested model's reason.
  EXPECT_EQ(reasonOf([&] { message->parseResponse(parseJsonMap(R"({"config": {"auto_update": null}})")); }),
            "autoUpdate is missing in model ClientConfig");
  // A reply without "config" leaves a fresh message's config empty.
  auto fresh = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
  fresh->parseResponse(JsonMap{});
  EXPECT_FALSE(fresh->config());
}

// The reason of a ParameterCheckFailException, "JsonTypeError", or "<no exception>".
std::string failureOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const ParameterCheckFailException& e) {
    return e.reason();
  } catch (const JsonTypeError&) {
    return "JsonTypeError";
  }
  return "<no exception>";
}

TEST(DictEngine, AReplyThatFailsPartWayLeavesEveryResultAsItWas) {
  const std::string user = R"({"user_id": 1, "uuid": "u", "created_at": 1, "guest_user": true, "vip": false,
                                "expert_consultation_count": 0})";
  const std::string first = R"({"user": )" + user + R"(, "access_token": "old", "config": )" + kConfig +
                            R"(, "other_configs": {"a": 1}, "country": "DE"})";
  // Each reply has results that read well (declared before the failing one, or after it) next to one that
  // fails: a message that stored results as it read them would keep a mix of both replies.
  struct Case {
    std::string reply;
    const char* failure;
  } cases[] = {
      {R"({"user": )" + user + R"(, "access_token": "new", "other_configs": null, "config": {"auto_update": null}})",
       "autoUpdate is missing in model ClientConfig"},
      {R"({"access_token": "new", "config": {"auto_update": {}}, "country": "FR"})",
       "hasUpdate is missing in model AutoUpdate"},
      {R"({"user": )" + user + R"(, "access_token": "new", "user_additional_data": [1]})", "JsonTypeError"},
      {R"({"access_token": "new", "app_server_time": 5, "config": "text"})", "JsonTypeError"},
  };
  const auto results = [](const QBUserInitialiseMessage& m) {
    return std::tuple(m.user().get(), m.userAdditionalData().get(), m.accessToken(), m.config().get(), m.otherConfigs(),
                      m.appServerTime(), m.country());
  };
  enum class From { borrowedMap, givenMap, bytes };
  for (const auto& c : cases) {
    for (const From from : {From::borrowedMap, From::givenMap, From::bytes}) {
      SCOPED_TRACE(c.reply + " (read from form " + std::to_string(static_cast<int>(from)) + ")");
      auto message = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
      message->parseResponseBytes(first);
      ASSERT_TRUE(message->user() && message->config() && message->otherConfigs() && message->accessToken());
      const auto before = results(*message);
      EXPECT_EQ(failureOf([&] {
                  if (from == From::givenMap) {
                    message->parseResponse(parseJsonMap(c.reply));
                  } else if (from == From::borrowedMap) {
                    const JsonMap reply = parseJsonMap(c.reply);
                    message->parseResponse(reply);
                  } else {
                    message->parseResponseBytes(c.reply);
                  }
                }),
                c.failure);
      EXPECT_EQ(results(*message), before);
    }
  }

  // A list of records fails as a whole too.
  const char* const faq = R"({"title": "t", "content": "c", "faq_type": 1})";
  auto faqs = QBUserGetFaqMessage::initWithData(0, 1);
  faqs->parseResponse(parseJsonMap(std::string(R"({"faqs": [)") + faq + "]}"));
  const auto list = faqs->faqs();
  ASSERT_TRUE(list && list->size() == 1);
  const auto withFaqs = [&](const char* more) {
    return parseJsonMap(std::string(R"({"faqs": [)") + faq + more + "]}");
  };
  EXPECT_EQ(failureOf([&] { faqs->parseResponse(withFaqs(R"(, {"title": "t"})")); }),
            "content is missing in model Faq");
  EXPECT_EQ(failureOf([&] { faqs->parseResponse(withFaqs(", null")); }), "JsonTypeError");
  EXPECT_EQ(failureOf([&] { faqs->parseResponseBytes(toJson(withFaqs(R"(, {"title": "t"})"))); }),
            "content is missing in model Faq");
  EXPECT_EQ(failureOf([&] { faqs->parseResponseBytes(toJson(withFaqs(", 7"))); }), "JsonTypeError");
  EXPECT_EQ(faqs->faqs(), list);
}

TEST(DictEngine, AReplyGivenUpIsReadLikeABorrowedOne) {
  // Values moved out of an owned reply must equal those copied out of a borrowed one, for plain values,
  // maps, nested models and keys in any order, with unknown and repeated keys.
  const std::string reply = std::string(R"({"zz": 1, "other_configs": {"a": [1, "x", null]}, "config": )") + kConfig +
                            R"(, "other_configs": {"b": 18446744073709551615}})";
  const JsonMap borrowed = parseJsonMap(reply);
  auto copied = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
  copied->parseResponse(borrowed);
  auto moved = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
  JsonMap owned = parseJsonMap(reply);
  moved->parseResponse(std::move(owned));
  ASSERT_TRUE(copied->config() && moved->config());
  EXPECT_EQ(moved->config()->toDictionary(), copied->config()->toDictionary());
  EXPECT_EQ(toJson(*moved->otherConfigs()), R"({"b":18446744073709551615})");
  EXPECT_EQ(borrowed, parseJsonMap(reply)) << "a borrowed reply is left as it was";

  // And the same read from the reply's bytes, where models are read from the parsed reply itself.
  auto parsed = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
  parsed->parseResponseBytes(reply);
  ASSERT_TRUE(parsed->config());
  EXPECT_EQ(parsed->config()->toDictionary(), copied->config()->toDictionary());
  EXPECT_EQ(toJson(*parsed->otherConfigs()), R"({"b":18446744073709551615})");
  auto faqs = QBUserGetFaqMessage::initWithData(0, 1);
  const std::string faqReply = R"({"faqs": [{"title": "t", "content": "c", "faq_type": "7 days", "x": []},
                                            {"content": "d", "title": "u", "faq_type": 2.9}], "more": 1})";
  faqs->parseResponseBytes(faqReply);
  auto fromMap = QBUserGetFaqMessage::initWithData(0, 1);
  fromMap->parseResponse(parseJsonMap(faqReply));
  EXPECT_EQ(detail::tableToDictionary(QBUserGetFaqMessage::qbResults(), *faqs),
            detail::tableToDictionary(QBUserGetFaqMessage::qbResults(), *fromMap));

  // Models read from an owned map likewise.
  EXPECT_EQ(QBAPIClientConfig::initWithJsonObject(parseJsonMap(kConfig))->toDictionary(),
            QBAPIClientConfig::initWithJsonObject(static_cast<const JsonMap&>(parseJsonMap(kConfig)))->toDictionary());
}

// What a message holds after reading `read`: its results as a map, or the error's kind and text.
template <class Message>
std::string outcomeOf(Message& message, const std::function<void()>& read) {
  try {
    read();
  } catch (const ParameterCheckFailException& e) {
    return std::string("check: ") + e.what();
  } catch (const JsonTypeError& e) {
    return std::string("type: ") + e.what();
  } catch (const DecodingError& e) {
    return std::string("parse: ") + e.what();
  }
  return toJson(detail::tableToDictionary(Message::qbResults(), message));
}

TEST(DictEngine, AReplysBytesReadAsTheirFullParseReadsAsAMap) {
  // The bytes are read in order and only what a property keeps is built; whatever that reading cannot
  // settle by itself (invalid JSON anywhere, a repeated key, nesting near the limit) must still end as
  // parsing the whole reply and reading the map ends.
  const std::string config = kConfig;
  const std::string deep = std::string(250, '[') + std::string(250, ']');
  const std::string tooDeep = std::string(300, '[') + std::string(300, ']');
  const std::string faq = R"({"title": "t", "content": "c", "faq_type": 1})";
  std::string repeatedInConfig = config;
  repeatedInConfig.insert(repeatedInConfig.find("false}") + 5, R"(, "has_update": null)");
  const std::vector<std::string> configReplies = {
      R"({"config": )" + config + R"(, "other_configs": {"a": [1, {"b": null}], "c": "\u00e9\n"}})",
      R"({"config": )" + config + R"(, "other_configs": {"long": 0.60000039333330000000001}})",
      R"({"other_configs": 5, "config": )" + config + "}",  // a map property keeps only a map
      R"({"config": )" + config + R"(, "unknown": [1, {"x": tru}]})",
      R"({"config": )" + config + R"(, "other_configs": [1, 2,]})",
      R"({"config": )" + config + R"(, "other_configs": "\x"})",
      R"({"config": )" + config + R"(, "unk\nown": 1, "bad\q": 1})",
      R"({"config": )" + config + R"(, "unknown": 1e400})",
      R"({"config": )" + config + R"(, "unknown": 18446744073709551616})",
      R"({"config": )" + config + ", \"unknown\": \"tab\tin text\"}",         // a raw control character
      R"({"config": )" + config + ", \"other_configs\": {\"a\": \"\xff\"}}",  // not UTF-8
      R"({"config": )" + config + R"(, "unknown": -})",
      R"({"config": )" + config + R"(, "unknown": nulll})",
      R"({"config": )" + config + R"(, "unknown": "x": "y"}})",  // a text followed by a colon
      R"({"config": )" + config + R"(, "other_configs": {"a": "x": "y"}}})",
      R"({"config": )" + config + R"(, "unknown": )" + deep + "}",
      R"({"config": )" + config + R"(, "unknown": )" + tooDeep + "}",
      R"({"config": )" + config + R"(, "other_configs": {"d": )" + deep + "}}",
      R"({"config": {"auto_update": 7}, "config": )" + config + "}",  // repeated: the last counts
      R"({"config": )" + config + R"(, "config": {"auto_update": {}}})",
      R"({"config": )" + config + R"(, "other_configs": {"k": 1, "k": 2}})",
      R"({"config": )" + config + R"(, "other_configs": {"k": 1}, "other_configs": 5})",
      R"({"config": )" + repeatedInConfig + "}",
      R"({"config": null})",
      R"({"config": )" + config + "} {}",
      R"({"config": )" + config + "} x",
      R"({"config": )" + config + R"( "other_configs": {}})",
      R"({"config": )" + config,
      "[1]",
      "\"x\"",
      "{",
      "",
      "  ",
      "{}",
  };
  for (const auto& reply : configReplies) {
    SCOPED_TRACE(reply.substr(0, 120));
    auto fromMap = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
    auto fromBytes = QBUserGetConfigMessage::initWithData(1, JsonValue("DE"));
    const std::string expected = outcomeOf(*fromMap, [&] { fromMap->parseResponse(parseJsonMap(reply)); });
    EXPECT_EQ(outcomeOf(*fromBytes, [&] { fromBytes->parseResponseBytes(reply); }), expected);
  }
  const std::vector<std::string> faqReplies = {
      R"({"faqs": [)" + faq + ", " + faq + "]}",
      R"({"faqs": [)" + faq + R"(, {"title": "t", "content": "c", "faq_type": 1, "title": 5}]})",
      R"({"faqs": [)" + faq + R"(, {"title": "t", "faq_type": 1}]})",
      R"({"faqs": [)" + faq + ", null]}",
      R"({"faqs": [)" + faq + "], \"faqs\": []}",
      R"({"faqs": {}})",
  };
  for (const auto& reply : faqReplies) {
    SCOPED_TRACE(reply);
    auto fromMap = QBUserGetFaqMessage::initWithData(0, 1);
    auto fromBytes = QBUserGetFaqMessage::initWithData(0, 1);
    const std::string expected = outcomeOf(*fromMap, [&] { fromMap->parseResponse(parseJsonMap(reply)); });
    EXPECT_EQ(outcomeOf(*fromBytes, [&] { fromBytes->parseResponseBytes(reply); }), expected);
  }
}

TEST(DictEngine, ListLevelOperations) {
  std::vector<std::shared_ptr<QBAPIAutoUpdate>> list{
      QBAPIAutoUpdate::initWithJsonObject(parseJsonMap(R"({"has_update": true, "force_update": false})"))};
  EXPECT_EQ(toJson(JsonValue(toDictionary(list))), R"([{"has_update":true,"force_update":false}])");
  EXPECT_EQ(*toJsonString(JsonList{1, "a"}), "[\n  1,\n  \"a\"\n]");
}

TEST(DictEngine, PropertiesAreAtomicUnderConcurrentReadsAndWrites) {
  auto config = QBAPIClientConfig::initWithJsonObject(parseJsonMap(kConfig));
  const JsonValue a("a-long-enough-text-to-need-the-heap-aaaaaaaaaaaaaaaaaaaaaaaaaa");
  const JsonValue b("b-long-enough-text-to-need-the-heap-bbbbbbbbbbbbbbbbbbbbbbbbbb");
  std::atomic<bool> stop{false};
  std::atomic<int> torn{0};
  std::thread writer([&] {
    for (int i = 0; i < 20000; ++i) config->setShareAppUrl(i % 2 ? a : b);
    stop = true;
  });
  std::thread reader([&] {
    while (!stop) {
      auto v = config->shareAppUrl();
      if (v && *v != a && *v != b) ++torn;
      (void)config->toJsonString();
    }
  });
  writer.join();
  reader.join();
  EXPECT_EQ(torn, 0);
}

}  // namespace
}  // namespace qb
