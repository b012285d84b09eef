#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <boost/json/serialize.hpp>
#include <cstdlib>
#include <random>

namespace qb {
namespace {

TEST(Json, NumbersKeepTheirKindAndExactValue) {
  const JsonValue v =
      parseJson(R"([9007199254740993, -9223372036854775808, 18446744073709551615, 0.1, 85.9379821058858, -0.0, 2.0])");
  const auto& a = v.as_array();
  EXPECT_EQ(a[0].as_int64(), 9007199254740993);
  EXPECT_EQ(a[1].as_int64(), INT64_MIN);
  EXPECT_EQ(a[2].as_uint64(), UINT64_MAX);
  EXPECT_EQ(a[3].as_double(), 0.1);
  EXPECT_EQ(a[4].as_double(), 85.9379821058858);
  EXPECT_TRUE(std::signbit(a[5].as_double()));
  EXPECT_TRUE(a[6].is_double());
  EXPECT_EQ(toJson(v), "[9007199254740993,-9223372036854775808,18446744073709551615,0.1,85.9379821058858,-0.0,2.0]");
}

TEST(Json, DoublesRoundTripExactly) {
  std::mt19937_64 random(42);
  std::uniform_real_distribution<double> spread(-1e6, 1e6);
  for (int i = 0; i < 2000; ++i) {
    const double d = spread(random);
    char text[64];
    std::snprintf(text, sizeof text, "%.17g", d);
    const JsonValue parsed = parseJson(text);
    ASSERT_EQ(parsed.as_double(), std::strtod(text, nullptr)) << text;
    ASSERT_EQ(parseJson(toJson(parsed)).as_double(), d) << text;
  }
}

TEST(Json, BadInputIsDataCorrupted) {
  const std::string deep(kMaxJsonDepth + 1, '[');
  for (std::string bad : {std::string("{"), std::string("{} x"), std::string("\"\xff\""), std::string("1e400"),
                          std::string("18446744073709551616"), std::string("[01]"), deep}) {
    try {
      parseJson(bad);
      ADD_FAILURE() << "accepted " << bad.substr(0, 20);
    } catch (const DecodingError& error) {
      EXPECT_EQ(error.kind(), DecodingError::Kind::dataCorrupted) << bad.substr(0, 20);
    }
  }
  EXPECT_THROW(parseJsonMap("[1]"), DecodingError);
}

TEST(Json, DuplicateKeysKeepTheLastValue) { EXPECT_EQ(parseJsonMap(R"({"a":1,"a":2})").at("a").as_int64(), 2); }

// The escaper reads texts sixteen and eight bytes at a time, with a last block that overlaps or is padded:
// an escape, a byte outside ASCII or a bad UTF-8 byte must be found at every position of every length.
TEST(Json, TextsAreEscapedAndCheckedWhereverTheByteFalls) {
  const auto reference = [](const std::string& text) {
    std::string out = "\"";
    for (const char c : text) {
      switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\x01': out += "\\u0001"; break;
        case '\x1f': out += "\\u001f"; break;
        default: out += c;
      }
    }
    return out + "\"";
  };
  for (std::size_t length = 1; length <= 40; ++length) {
    for (std::size_t at = 0; at < length; ++at) {
      for (const std::string special : {"\"", "\\", "\n", "\x01", "\x1f", "\xc3\xa9", "\xff"}) {
        std::string text(length, 'a');
        text.replace(at, 1, special);
        SCOPED_TRACE(::testing::Message() << "length " << length << ", at " << at << ", byte "
                                          << static_cast<int>(static_cast<unsigned char>(special[0])));
        // The same text as a map key, and with the special byte a second time a few bytes further on.
        const std::string twice = text + std::string(at % 19, 'b') + special;
        if (special == "\xff") {
          EXPECT_THROW(toJson(JsonValue(text)), EncodingError);
          EXPECT_THROW(toJson(JsonMap{{text, 1}}), EncodingError);
        } else {
          EXPECT_EQ(toJson(JsonValue(text)), reference(text));
          EXPECT_EQ(toJson(JsonMap{{text, 1}, {"k", 2}}), "{" + reference(text) + R"(:1,"k":2})");
          EXPECT_EQ(toJson(JsonValue(twice)), reference(twice));
        }
      }
    }
  }
  // A bad byte after an escape, and before one, is found as well.
  for (std::size_t length = 2; length <= 40; ++length) {
    std::string after(length, 'a'), before(length, 'a');
    after.front() = '"';
    after.back() = '\xff';
    before.front() = '\xff';
    before.back() = '"';
    EXPECT_THROW(toJson(JsonValue(after)), EncodingError) << length;
    EXPECT_THROW(toJson(JsonValue(before)), EncodingError) << length;
  }
  EXPECT_EQ(toJson(JsonValue("")), "\"\"");
}

// The writers grow their output in steps: texts from a few bytes to several megabytes come out whole,
// as Boost.JSON writes them (the same for plain texts and integers).
TEST(Json, LongTextsComeOutWhole) {
  for (const std::size_t count : {0, 1, 20, 21, 300, 70000, 150000}) {
    JsonList list;
    for (std::size_t i = 0; i < count; ++i) {
      list.emplace_back(std::string(i % 37, static_cast<char>('a' + i % 26)));
      list.emplace_back(static_cast<std::int64_t>(i) * 7919);
    }
    const JsonValue value(std::move(list));
    EXPECT_EQ(toJson(value), boost::json::serialize(value)) << count;
  }
}

TEST(Json, PrettyTextIsIndentedAndRefusesWhatIsNotJson) {
  const JsonValue v = parseJson(R"({"a":[1,{"b":"x\ny"}],"c":{},"d":[]})");
  EXPECT_EQ(*toPrettyJson(v),
            "{\n  \"a\": [\n    1,\n    {\n      \"b\": \"x\\ny\"\n    }\n  ],\n"
            "  \"c\": {},\n  \"d\": []\n}");
  EXPECT_FALSE(toPrettyJson(JsonValue(std::nan(""))));
  EXPECT_FALSE(toPrettyJson(JsonValue(INFINITY)));
  EXPECT_FALSE(toPrettyJson(JsonValue("\xc3\x28")));
  EXPECT_THROW(toJson(JsonMap{{"x", std::nan("")}}), EncodingError);
  EXPECT_EQ(toJson(JsonValue("\x01\"\\é")), "\"\\u0001\\\"\\\\é\"");
}

}  // namespace
}  // namespace qb
