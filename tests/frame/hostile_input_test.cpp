// Replies that are wrong, truncated or hostile: each has one defined outcome in both faces.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>
#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserUpdateDeviceInfoMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserUpdateUserPropertiesMessage.hpp>
#include <QBComponentAPI/user/typed/FaqModel.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateDeviceInfoRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateRequest.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>
#include <cmath>

namespace qb {
namespace {

using Kind = DecodingError::Kind;

std::optional<Kind> typedFailure(const std::string& json) {
  try {
    JSONDecoder().decode<UserGetFaqResponse>(json);
  } catch (const DecodingError& e) {
    return e.kind();
  }
  return std::nullopt;
}

TEST(HostileInput, MalformedRepliesAreDataCorruptedInBothFaces) {
  const std::string deep = std::string(100000, '[') + std::string(100000, ']');
  const std::string cases[] = {
      deep,
      R"({"faqs": )" + deep + "}",
      "{\"faqs\": [{\"title\": \"\xff\", \"content\": \"c\", \"faq_type\": 1}]}",  // invalid UTF-8
      R"({"faqs": [{"title": "\ud800", "content": "c", "faq_type": 1}]})",         // lone surrogate escape
      R"({"faqs": [{"title": "t", "content": "c", "faq_type": 1e400}]})",
      R"({"faqs": [{"content": "c", "faq_type": 1, "title": "t": "u"}}]})",  // a text taken for a key
      R"({"faqs": [)",
      R"({"faqs": []} {})",
      "",
  };
  for (const auto& json : cases) {
    SCOPED_TRACE(json.substr(0, 60));
    EXPECT_EQ(typedFailure(json), Kind::dataCorrupted);
    try {
      parseJsonMap(json);
      ADD_FAILURE() << "parsed";
    } catch (const DecodingError& e) {
      EXPECT_EQ(e.kind(), Kind::dataCorrupted);
    }
  }
}

TEST(HostileInput, ValuesUnderUnknownKeysAreSkippedUnread) {
  // The Typed face reads past what a record does not declare without validating it beyond UTF-8 and
  // bracket nesting (that is what keeps decoding near the parser's speed); the Dictionary face parses all.
  const std::string json = R"({"faqs": [], "x": )" + std::string(100000, '{') + std::string(100000, '}') + "}";
  EXPECT_EQ(typedFailure(json), std::nullopt);
  EXPECT_THROW(parseJsonMap(json), DecodingError);
}

TEST(HostileInput, AHugeTextIsKeptWhole) {
  const std::string big(50 << 20, 'x');
  const std::string json = R"({"faqs": [{"title": ")" + big + R"(", "content": "c", "faq_type": 1}]})";
  EXPECT_EQ(JSONDecoder().decode<UserGetFaqResponse>(json).faqs[0].title.size(), big.size());
  EXPECT_EQ(QBAPIFaq::initWithJsonObject(parseJsonMap(json).at("faqs").as_array()[0])->title()->as_string().size(),
            big.size());
}

TEST(HostileInput, NumbersAtTheLimits) {
  struct Case {
    const char* number;
    std::optional<Kind> typed;  // as the Int64 faq_type
    const char* dictionary;     // as written back by the Dictionary face
  } cases[] = {
      {"9223372036854775807", std::nullopt, "9223372036854775807"},
      {"-9223372036854775808", std::nullopt, "-9223372036854775808"},
      {"9223372036854775808", Kind::typeMismatch, "9223372036854775808"},
      {"18446744073709551615", Kind::typeMismatch, "18446744073709551615"},
      {"18446744073709551616", Kind::dataCorrupted, nullptr},
      {"-9223372036854775809", Kind::dataCorrupted, nullptr},
      {"1e400", Kind::dataCorrupted, nullptr},
      {"-0", std::nullopt, "0"},
      {"-0.0", Kind::typeMismatch, "-0.0"},
      {"1.0", Kind::typeMismatch, "1.0"},
  };
  for (const auto& c : cases) {
    const std::string faq = std::string(R"({"title": "t", "content": "c", "faq_type": )") + c.number + "}";
    SCOPED_TRACE(c.number);
    EXPECT_EQ(typedFailure("{\"faqs\": [" + faq + "]}"), c.typed);
    if (c.dictionary) {
      EXPECT_EQ(toJson(*QBAPIFaq::initWithJsonObject(parseJsonMap(faq))->faqType()), c.dictionary);
    } else {
      EXPECT_THROW(parseJsonMap(faq), DecodingError);
    }
  }
  // Doubles are read by the number's kind, the same way on the fast and the exact path.
  EXPECT_TRUE(std::signbit(JSONDecoder().decode<std::vector<double>>("[-0.0]")[0]));
  EXPECT_FALSE(std::signbit(JSONDecoder().decode<std::vector<double>>("[-0]")[0]));
  EXPECT_EQ(JSONDecoder().decode<std::vector<double>>("[18446744073709551615]")[0], 18446744073709551615.0);
  // More than 19 digits: rounded from all of them.
  EXPECT_EQ(JSONDecoder().decode<std::vector<double>>("[0.60000039333330000000001, 1.0000000000000000000001e2]"),
            (std::vector<double>{0.6000003933333, 100.0}));
  EXPECT_THROW(JSONDecoder().decode<std::vector<double>>("[18446744073709551616]"), DecodingError);
}

TEST(HostileInput, DuplicateKeysKeepTheLastValueInBothFaces) {
  const std::string json = R"({"title": "first", "content": "c", "faq_type": 1, "title": "last"})";
  EXPECT_EQ(JSONDecoder().decode<FaqModel>(json).title, "last");
  EXPECT_EQ(*QBAPIFaq::initWithJsonObject(parseJsonMap(json))->title(), JsonValue("last"));
}

TEST(HostileInput, WrongShapesAreTypedErrors) {
  struct Case {
    const char* json;
    const char* path;  // of the Typed face's error
    Kind kind;
  } cases[] = {
      {R"({"faqs": {"title": "t"}})", "faqs", Kind::typeMismatch},
      {R"({"faqs": [{"title": "t", "content": "c", "faq_type": 1}, null]})", "faqs[1]", Kind::valueNotFound},
      {R"({"faqs": [[]]})", "faqs[0]", Kind::typeMismatch},
      {R"({"faqs": "none"})", "faqs", Kind::typeMismatch},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.json);
    try {
      JSONDecoder().decode<UserGetFaqResponse>(c.json);
      ADD_FAILURE();
    } catch (const DecodingError& e) {
      EXPECT_EQ(e.kind(), c.kind);
      EXPECT_EQ(renderCodingPath(e.codingPath()), c.path);
    }
    EXPECT_THROW(QBUserGetFaqMessage::initWithData(0, 1)->parseResponse(parseJsonMap(c.json)), JsonTypeError);
  }
}

// The coding path of the EncodingError both Typed-face encoders throw for `record`, which must agree.
template <class T>
std::string encodingFailurePath(const T& record) {
  std::optional<std::string> text, value;
  try {
    JSONEncoder().encode(record);
  } catch (const EncodingError& e) {
    text = renderCodingPath(e.codingPath());
  }
  try {
    JsonValueEncoder().encode(record);
  } catch (const EncodingError& e) {
    value = renderCodingPath(e.codingPath());
  }
  EXPECT_EQ(text, value);
  return text.value_or("<encoded>");
}

// The coding path of the EncodingError getParams throws, or "<built>".
std::string paramsFailurePath(const QBMessageBase& message) {
  try {
    message.getParams();
  } catch (const EncodingError& e) {
    return renderCodingPath(e.codingPath());
  }
  return "<built>";
}

TEST(HostileInput, UnwritableValuesSetByTheAppAreRefusedInBothFaces) {
  // NaN, infinity and text that is not UTF-8 (an overlong encoding, an encoded lone surrogate), alone or
  // inside a list or a map, as a value or as a key.
  const JsonValue cases[] = {
      JsonValue(std::nan("")),
      JsonValue(INFINITY),
      JsonValue(-INFINITY),
      JsonValue("\xc0\xaf"),
      JsonValue("\xed\xa0\x80"),
      JsonValue(JsonList{1, std::nan("")}),
      JsonValue(JsonMap{{"k", JsonList{"\xff"}}}),
      JsonValue(JsonMap{{"\xff", 1}}),
  };
  for (const JsonValue& value : cases) {
    SCOPED_TRACE(describeKind(value));
    // Dictionary face: no text for the record or the list holding it, and getParams refuses the parameter
    // whatever its kind.
    auto device = QBAPIDeviceInfo::initWithJsonObject(parseJsonMap(R"({"device_token": "t"})"));
    device->setDeviceToken(value);
    EXPECT_FALSE(device->toJsonString());
    EXPECT_FALSE(toJsonString(JsonList{value}));
    EXPECT_EQ(paramsFailurePath(*QBUserUpdateDeviceInfoMessage::initWithData(device)), "device_info");
    EXPECT_EQ(paramsFailurePath(*QBUserUpdateUserPropertiesMessage::initWithData(JsonValue("k"), value)), "value");
    // List and map parameters, which no message of the user API has yet.
    EXPECT_THROW(detail::parameterValue(std::optional<JsonList>(JsonList{value}), "l"), EncodingError);
    try {
      detail::parameterValue(std::optional<JsonMap>(JsonMap{{"k", value}}), "m");
      ADD_FAILURE() << "written";
    } catch (const EncodingError& e) {
      EXPECT_EQ(renderCodingPath(e.codingPath()), "m");
    }
    // Typed face: any value carried unread.
    UserGetConfigResponse reply{};
    reply.otherConfigs["x"] = AnyCodable{value};
    EXPECT_EQ(encodingFailurePath(reply), "other_configs.x");
  }
  // Typed face: text members and the keys of maps.
  EXPECT_EQ(encodingFailurePath(FaqModel{.title = "\xc0\xaf", .content = "", .faqType = 0}), "title");
  UserGetConfigResponse reply{};
  reply.otherConfigs["\xff"] = AnyCodable{JsonValue(1)};
  EXPECT_EQ(encodingFailurePath(reply), "other_configs");

  // A parameter is checked where it will be written, one level down in the map of parameters: nested as
  // deep as JSON text allows there, it is sent.
  JsonValue deep = 1;
  for (std::size_t depth = 1; depth < kMaxJsonDepth; ++depth) deep = JsonValue(JsonList{std::move(deep)});
  auto message = QBUserUpdateUserPropertiesMessage::initWithData(JsonValue("k"), deep);
  EXPECT_NO_THROW((void)toJson(message->getParams()));
  message->setValue(JsonValue(JsonList{std::move(deep)}));
  EXPECT_EQ(paramsFailurePath(*message), "value");
}

TEST(HostileInput, EnumerationValuesThatAreNoCaseAreRefusedByTheTypedEncoders) {
  UserGetFaqRequest faq{};  // as a designated initializer that leaves out the device type: 0, no DeviceType
  faq.languageCode = LanguageCode::en;
  EXPECT_EQ(encodingFailurePath(faq), "device_type");
  faq.deviceType = DeviceType::web;
  EXPECT_EQ(encodingFailurePath(faq), "<encoded>");
  faq.languageCode = static_cast<LanguageCode>(16);
  EXPECT_EQ(encodingFailurePath(faq), "language_code");
  EXPECT_EQ(encodingFailurePath(UserUpdateRequest{.gender = static_cast<Gender>(7)}), "gender");
  UserUpdateDeviceInfoRequest device{};
  device.deviceInfo.deviceToken = "t";
  EXPECT_EQ(encodingFailurePath(device), "device_info.device_type");
  // Decoding fallbacks apply to replies only: an unknown VipLevel reads as gold but is not written.
  VipInfoModel vip{};
  vip.vipLevel = static_cast<VipLevel>(99);
  EXPECT_EQ(encodingFailurePath(vip), "vip_level");

  // The Dictionary face carries enumerations as plain integers and sends them as they are.
  EXPECT_EQ(toJson(QBUserGetFaqMessage::initWithData(16, 0)->getParams()), R"({"language_code":16,"device_type":0})");
}

}  // namespace
}  // namespace qb
