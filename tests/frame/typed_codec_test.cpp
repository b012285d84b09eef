// The Typed-face engine: generic decoding and encoding through coding keys, over the JSON text codec and
// the JsonValue codec alike.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>

namespace qb::test {

enum class Shade : std::int64_t { light = 1, dark = 2 };
enum class Tier : std::int64_t { basic = 0, gold = 1, max = 2 };

}  // namespace qb::test

QB_ENUM(qb::test::Shade, QB_CASE(qb::test::Shade, light), QB_CASE(qb::test::Shade, dark));
QB_ENUM_WITH_FALLBACK(qb::test::Tier, gold, QB_CASE(qb::test::Tier, basic), QB_CASE(qb::test::Tier, gold),
                      QB_CASE(qb::test::Tier, max));

namespace qb::test {

struct Item {
  std::int64_t id;
  std::optional<Shade> shade = std::nullopt;
  Tier tier;
  std::optional<Date> seen = std::nullopt;
  std::vector<std::string> tags;
  std::optional<double> weight = std::nullopt;
  std::optional<std::map<std::string, AnyCodable>> extra = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("id", &Item::id), qb::key("shade", &Item::shade), qb::key("tier", &Item::tier),
                     qb::key("seen", &Item::seen), qb::key("tags", &Item::tags), qb::key("weight", &Item::weight),
                     qb::key("extra", &Item::extra));
  bool operator==(const Item&) const = default;
};

struct Upload {
  std::optional<std::string> title = std::nullopt;
  std::optional<APIFile> picture = std::nullopt;
  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("title", &Upload::title), qb::file("picture", &Upload::picture));
  QB_TYPED_REQUEST((Endpoint{"v3/test/upload", HttpVerb::get, Auth::none}), Item)
};

template <class T>
T decodeBoth(std::string_view json, DateStrategy strategy = DateStrategy::secondsSince1970) {
  JSONDecoder text;
  text.dateStrategy = strategy;
  JsonValueDecoder value;
  value.dateStrategy = strategy;
  T fromText = text.decode<T>(json);
  EXPECT_EQ(fromText, value.decode<T>(parseJson(json))) << json;
  return fromText;
}

// The error of both decoders, which must agree.
template <class T>
DecodingError errorOf(std::string_view json) {
  std::optional<DecodingError> fromText, fromValue;
  try {
    JSONDecoder().decode<T>(json);
  } catch (const DecodingError& e) {
    fromText = e;
  }
  try {
    JsonValueDecoder().decode<T>(parseJson(json));
  } catch (const DecodingError& e) {
    fromValue = e;
  }
  if (!fromText) {
    ADD_FAILURE() << "decoded: " << json;
    return DecodingError(DecodingError::Kind::dataCorrupted, {}, "");
  }
  EXPECT_TRUE(fromValue);
  if (fromValue) {
    EXPECT_EQ(fromText->what(), std::string(fromValue->what()));
  }
  return *fromText;
}

const char* const kReply = R"({
  "config": {"auto_update": {"has_update": true, "force_update": false}, "expert_default_count": 3,
             "timestamp": 1700000000, "unknown": [{"deep": [1, 2, {"x": null}]}],
             "legal_config": {"agreement_version": 2, "privacy_policy_version": 5, "agreement_url": null,
                              "next_agreement_available_at": 1700000000.5}},
  "other_configs": {"flag": true, "big": 18446744073709551615, "id": 9007199254740993, "list": [1.5, "x", null]}
})";

TEST(TypedCodec, DecodesStraightIntoRecords) {
  auto reply = decodeBoth<UserGetConfigResponse>(kReply);
  EXPECT_TRUE(reply.config.autoUpdate.hasUpdate);
  EXPECT_EQ(reply.config.legalConfig.privacyPolicyVersion, 5);
  EXPECT_FALSE(reply.config.legalConfig.agreementUrl) << "null in an optional member leaves it absent";
  EXPECT_FALSE(reply.config.shareAppUrl);
  EXPECT_EQ(reply.config.legalConfig.nextAgreementAvailableAt->time_since_epoch().count(), 1700000000500);
  EXPECT_EQ(reply.otherConfigs.at("big").value.as_uint64(), UINT64_MAX);
  EXPECT_EQ(reply.otherConfigs.at("id").value.as_int64(), 9007199254740993);
  EXPECT_EQ(UserGetConfigResponse::init(std::string_view(kReply), JSONDecoder()), reply);
}

TEST(TypedCodec, ErrorsCarryKindPathAndDescription) {
  using Kind = DecodingError::Kind;
  const std::string head =
      R"({"other_configs": {}, "config": {"auto_update": {"has_update": true, "force_update": false},
      "expert_default_count": 3, "timestamp": 1, "legal_config": {"agreement_version": 2)";
  struct Case {
    std::string json;
    Kind kind;
    const char* path;
    const char* description;
  } cases[] = {
      {head + "}}}", Kind::keyNotFound, "config.legal_config.privacy_policy_version",
       "No value associated with key \"privacy_policy_version\"."},
      {head + R"(, "privacy_policy_version": null}}})", Kind::valueNotFound,
       "config.legal_config.privacy_policy_version", "Expected Int64 value but found null instead."},
      {head + R"(, "privacy_policy_version": "5"}}})", Kind::typeMismatch, "config.legal_config.privacy_policy_version",
       "Expected to decode Int64 but found a string instead."},
      {head + R"(, "privacy_policy_version": 1.5}}})", Kind::typeMismatch, "config.legal_config.privacy_policy_version",
       "Expected to decode Int64 but found a number instead."},
      {head + R"(, "privacy_policy_version": 9223372036854775808}}})", Kind::typeMismatch,
       "config.legal_config.privacy_policy_version", "Expected to decode Int64 but found an integer instead."},
      {R"({"config": {}})", Kind::keyNotFound, "config.auto_update", "No value associated with key \"auto_update\"."},
      {R"({"config": []})", Kind::typeMismatch, "config", "Expected to decode Dictionary but found an array instead."},
      {R"({"config": {"auto_update": {"has_update": 1}}})", Kind::typeMismatch, "config.auto_update.has_update",
       "Expected to decode Bool but found an integer instead."},
      {R"([])", Kind::typeMismatch, "", "Expected to decode Dictionary but found an array instead."},
  };
  for (const auto& c : cases) {
    const DecodingError error = errorOf<UserGetConfigResponse>(c.json);
    EXPECT_EQ(error.kind(), c.kind) << c.json;
    EXPECT_EQ(renderCodingPath(error.codingPath()), c.path) << c.json;
    EXPECT_EQ(error.debugDescription(), c.description) << c.json;
  }
}

TEST(TypedCodec, TheFirstFailingFieldInDeclaredOrderIsReported) {
  // "other_configs" is wrong and comes first in the text; "config" is declared first and missing a key.
  const DecodingError error =
      errorOf<UserGetConfigResponse>(R"({"other_configs": 5, "config": {"auto_update": {"has_update": true}}})");
  EXPECT_EQ(renderCodingPath(error.codingPath()), "config.auto_update.force_update");
  EXPECT_EQ(error.kind(), DecodingError::Kind::keyNotFound);
}

TEST(TypedCodec, EnumerationsFailOrFallBack) {
  EXPECT_EQ(decodeBoth<Item>(R"({"id": 1, "tier": 9, "tags": []})").tier, Tier::gold);
  EXPECT_EQ(decodeBoth<Item>(R"({"id": 1, "tier": -1, "tags": []})").tier, Tier::gold);
  EXPECT_EQ(decodeBoth<Item>(R"({"id": 1, "tier": 2, "shade": 2, "tags": []})").shade, Shade::dark);
  const DecodingError error = errorOf<Item>(R"({"id": 1, "tier": 0, "shade": 3, "tags": []})");
  EXPECT_EQ(error.kind(), DecodingError::Kind::dataCorrupted);
  EXPECT_EQ(error.debugDescription(), "Cannot initialize Shade from invalid Int value 3");
  EXPECT_EQ(renderCodingPath(error.codingPath()), "shade");
  EXPECT_EQ(errorOf<Item>(R"({"id": 1, "tier": "1", "tags": []})").kind(), DecodingError::Kind::typeMismatch);

  EXPECT_EQ(fromRawValue<Shade>(2), Shade::dark);
  EXPECT_FALSE(fromRawValue<Shade>(0));
  EXPECT_EQ(caseName(Tier::max), "max");
  EXPECT_EQ(allCases<Tier>().size(), 3u);
  EXPECT_EQ(allCases<Tier>()[1].value, Tier::gold);
}

TEST(TypedCodec, ListsCarryTheIndexInThePath) {
  const DecodingError error = errorOf<Item>(R"({"id": 1, "tier": 0, "tags": ["a", null]})");
  EXPECT_EQ(renderCodingPath(error.codingPath()), "tags[1]");
  EXPECT_EQ(error.kind(), DecodingError::Kind::valueNotFound);
}

TEST(TypedCodec, RecordsSurviveEncodeDecodeUnderEveryDateStrategy) {
  const Item item{
      .id = 9007199254740993,
      .shade = Shade::light,
      .tier = Tier::max,
      .seen = Date(std::chrono::milliseconds(1700000000250)),
      .tags = {"é", "quote\"back\\slash\n", ""},
      .weight = 0.1,
      .extra = std::map<std::string, AnyCodable>{{"n", {JsonValue(nullptr)}}, {"u", {JsonValue(UINT64_MAX)}}}};
  for (auto strategy : {DateStrategy::secondsSince1970, DateStrategy::millisecondsSince1970, DateStrategy::iso8601}) {
    JSONEncoder encoder;
    encoder.dateStrategy = strategy;
    const std::string text = encoder.encode(item);
    EXPECT_EQ(decodeBoth<Item>(text, strategy), item) << text;
    JsonValueEncoder valueEncoder;
    valueEncoder.dateStrategy = strategy;
    EXPECT_EQ(valueEncoder.encode(item), parseJson(text));
  }
  JSONEncoder encoder;
  encoder.dateStrategy = DateStrategy::iso8601;
  EXPECT_EQ(encoder.encode(item),
            R"({"id":9007199254740993,"shade":1,"tier":2,"seen":"2023-11-14T22:13:20.250Z",)"
            R"("tags":["é","quote\"back\\slash\n",""],"weight":0.1,"extra":{"n":null,"u":18446744073709551615}})");
}

TEST(TypedCodec, AbsentOptionalsLeaveNoKeyAndUnwritableValuesThrow) {
  EXPECT_EQ(JSONEncoder().encode(Item{.id = 1, .tier = Tier::basic, .tags = {}}), R"({"id":1,"tier":0,"tags":[]})");
  struct Case {
    Item item;
    const char* path;
  } cases[] = {
      {Item{.id = 1, .tier = Tier::basic, .tags = {}, .weight = std::nan("")}, "weight"},
      {Item{.id = 1, .tier = Tier::basic, .tags = {"ok", "\xff"}}, "tags[1]"},
      {Item{.id = 1,
            .tier = Tier::basic,
            .tags = {},
            .extra = std::map<std::string, AnyCodable>{{"x", {JsonValue(INFINITY)}}}},
       "extra.x"},
  };
  for (const auto& c : cases) {
    try {
      JSONEncoder().encode(c.item);
      ADD_FAILURE() << c.path;
    } catch (const EncodingError& e) {
      EXPECT_EQ(renderCodingPath(e.codingPath()), c.path);
    }
    EXPECT_THROW(JsonValueEncoder().encode(c.item), EncodingError) << c.path;
  }
}

TEST(TypedCodec, TolerantOfUnknownKeysStrictAboutJson) {
  EXPECT_EQ(decodeBoth<Item>(R"({"zzz": {"a": [1, {}]}, "id": 1, "tier": 0, "tags": [], "id": 2})").id, 2)
      << "duplicate keys: the last one wins";
  EXPECT_EQ(decodeBoth<Item>(R"({"i\u0064": 7, "tier": 0, "tags": []})").id, 7) << "escaped keys match";
  for (const char* bad : {R"({"id": 1, "tier": 0, "tags": []} trailing)", R"({"id": 1, "tier": 0, "tags": [})", "",
                          "{\"id\": 1, \"tier\": 0, \"tags\": [\"\xff\"]}"}) {
    EXPECT_EQ(errorOf<Item>(bad).kind(), DecodingError::Kind::dataCorrupted) << bad;
  }
}

// Keys that share prefixes, one longer than the parser's padding, and one that is empty.
struct Keys {
  std::int64_t a = 0, ab = 0, abc = 0;
  std::optional<std::int64_t> longest = std::nullopt, empty = std::nullopt;
  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("a", &Keys::a), qb::key("ab", &Keys::ab), qb::key("abc", &Keys::abc),
      qb::key("a_key_longer_than_the_sixty_four_bytes_of_padding_that_follow_the_reply_text", &Keys::longest),
      qb::key("", &Keys::empty));
  bool operator==(const Keys&) const = default;
};

// The streaming decoder alone, without the exact decoder it falls back to: nullopt where it gives up.
template <class T>
std::optional<T> streamed(std::string_view json) {
  try {
    simdjson::ondemand::value root;
    if (detail::openDocument(json).get_value().get(root)) return std::nullopt;
    T out{};
    detail::StreamNode node(root, DateStrategy::secondsSince1970);
    detail::decodeValue(node, out);
    return out;
  } catch (const detail::StreamFailure&) {
    return std::nullopt;
  }
}

TEST(TypedCodec, KeysMatchExactlyWhateverTheirOrderPrefixesLengthOrEscapes) {
  const std::string longKey = "a_key_longer_than_the_sixty_four_bytes_of_padding_that_follow_the_reply_text";
  struct Row {
    std::string json;
    Keys expected;
  };
  const std::vector<Row> rows = {
      {R"({"a": 1, "ab": 2, "abc": 3})", {1, 2, 3}},
      {R"({"abc": 3, "ab": 2, "a": 1})", {1, 2, 3}},
      {R"({"abcd": 9, "ab": 2, "a ": 9, "abc": 3, "A": 9, "a": 1})", {1, 2, 3}},
      {R"({"a": 1, "a\u0062": 2, "\u0061bc": 3})", {1, 2, 3}},
      {R"({"a": 1, "ab": 2, "abc": 3, "a": 4})", {4, 2, 3}},
      {R"({"a": 1, "ab": 2, "abc": 3, ")" + longKey + R"(": 5, "": 6})", {1, 2, 3, 5, 6}},
      {R"({")" + longKey + R"(x": 9, "": 6, "ab": 2, "a": 1, "abc": 3})", {1, 2, 3, std::nullopt, 6}},
  };
  for (const Row& row : rows) {
    const auto fast = streamed<Keys>(row.json);
    ASSERT_TRUE(fast) << row.json;
    EXPECT_EQ(*fast, row.expected) << row.json;
    EXPECT_EQ(JsonValueDecoder().decode<Keys>(parseJson(row.json)), row.expected) << row.json;
  }
}

TEST(TypedCodec, NumbersReadOnTheFastPathAsTheFullParseReadsThem) {
  // Long mantissas (more than 19 significant digits) once came back as 0 from the streaming parser.
  for (std::string number :
       {std::string("2") + std::string(60, '9') + ".5", std::string("123456789012345678901e0"),
        std::string("1234567890123456789012.0e-3"), std::string("-0"), std::string("1.5"), std::string("-2.5e-300"),
        std::string("18446744073709551615"), std::string("-9223372036854775808")}) {
    const std::string json =
        R"({"id": 1, "tier": 0, "tags": [], "weight": )" + number + R"(, "extra": {"n": )" + number + "}}";
    const auto fast = streamed<Item>(json);
    ASSERT_TRUE(fast) << json;
    EXPECT_EQ(*fast, JsonValueDecoder().decode<Item>(parseJson(json))) << json;
  }
  // Integers past 64 bits and doubles out of range are refused on both paths.
  for (std::string number : {"18446744073709551616", "-9223372036854775809", "1e400"}) {
    const std::string json = R"({"id": 1, "tier": 0, "tags": [], "extra": {"n": )" + number + "}}";
    EXPECT_FALSE(streamed<Item>(json)) << json;
    EXPECT_EQ(errorOf<Item>(json).kind(), DecodingError::Kind::dataCorrupted) << json;
  }
}

TEST(TypedCodec, TextsReadOnTheFastPathAsTheFullParseReadsThem) {
  // Texts without escapes are read where they lie, up to their closing quote, whatever spaces follow;
  // texts with escapes are unescaped.
  for (const std::string& tags : std::vector<std::string>{
           R"(["", "a", "caf\u00e9", "x\"y", "\\", "tab\tend", "\ud83d\ude00", "naïve"])",
           "[ \"a\" , \"b\"\n,\r\n\t\"c\"\n ]", R"(["a quote at the end\""])", R"(["\\"])",
           R"(["ends in a backslash pair \\", "ok"])", R"([")" + std::string(200, 'z') + R"("])"}) {
    const std::string json = R"({"id": 1, "tier": 0, "tags": )" + tags + " }  ";
    const auto fast = streamed<Item>(json);
    ASSERT_TRUE(fast) << json;
    EXPECT_EQ(*fast, JsonValueDecoder().decode<Item>(parseJson(json))) << json;
  }
}

TEST(TypedCodec, GetConfigRequestDescribesTheCall) {
  const UserGetConfigRequest request{.languageCode = LanguageCode::de, .countryCode = "DE"};
  EXPECT_EQ(request.api(), "v3/user/get_config");
  EXPECT_EQ(request.methods(), std::vector<std::string>{"POST"});
  EXPECT_TRUE(request.forceHttps());
  EXPECT_TRUE(request.needAuth());
  EXPECT_TRUE(request.mustAuth());
  EXPECT_TRUE(request.mimeBodies().empty());
  EXPECT_EQ(request.parseParamater(JSONEncoder()), R"({"language_code":6,"country_code":"DE"})");
  EXPECT_EQ(request.parseParamater(JsonValueEncoder()), parseJson(R"({"language_code":6,"country_code":"DE"})"));
}

TEST(TypedCodec, FileMembersBecomeMultipartBodiesAndAreNeverEncoded) {
  Upload upload{.title = "t"};
  EXPECT_TRUE(upload.mimeBodies().empty());
  EXPECT_EQ(upload.methods(), std::vector<std::string>{"GET"});
  EXPECT_FALSE(upload.needAuth());
  upload.picture = APIFile{.data = {std::byte{1}, std::byte{2}}};
  const auto bodies = upload.mimeBodies();
  ASSERT_EQ(bodies.size(), 1u);
  EXPECT_EQ(bodies[0].name, "picture");
  EXPECT_EQ(bodies[0].fileName, "file");
  EXPECT_EQ(bodies[0].contentType, "application/octet-stream");
  EXPECT_EQ(bodies[0].file, *upload.picture);
  EXPECT_EQ(upload.parseParamater(JSONEncoder()), R"({"title":"t"})");
  EXPECT_EQ(codingKeyIndex<Upload>("title"), 0u);
  EXPECT_FALSE(codingKeyIndex<Upload>("Title"));
}

}  // namespace qb::test

// Decoding for the test-local record, as a record's own .cpp file would instantiate it.
QB_TYPED_DEFINE(qb::test::Item)
