// The one error family, and where a malformed reply goes wrong.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/JsonFault.hpp>
#include <QBComponentAPI/user/dict/QBAPIAutoUpdate.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/typed/FaqModel.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>
#include <functional>
#include <random>

namespace qb {
namespace {

using Kind = DecodingError::Kind;

// The error `f` throws, caught as the family's base.
std::optional<std::string> caughtAsQbError(const std::function<void()>& f,
                                           const std::function<void(const Error&)>& check) {
  try {
    f();
  } catch (const Error& e) {
    check(e);
    return std::string(e.what());
  } catch (...) {
    ADD_FAILURE() << "not a qb::Error";
  }
  return std::nullopt;
}

TEST(Errors, EveryLibraryErrorIsCaughtAsQbErrorWithItsAccessors) {
  struct Case {
    const char* name;
    std::function<void()> raise;
    std::function<void(const Error&)> check;
    const char* what;
  } cases[] = {
      {"ParameterCheckFailException", [] { QBAPIAutoUpdate::initWithJsonObject(parseJsonMap("{}")); },
       [](const Error& e) {
         const auto* p = dynamic_cast<const ParameterCheckFailException*>(&e);
         ASSERT_NE(p, nullptr);
         EXPECT_EQ(p->name(), "ParameterCheckFailException");
         EXPECT_EQ(p->reason(), "hasUpdate is missing in model AutoUpdate");
       },
       "hasUpdate is missing in model AutoUpdate"},
      {"JsonTypeError",
       [] { QBUserGetFaqMessage::initWithData(0, 1)->parseResponse(parseJsonMap(R"({"faqs": "none"})")); },
       [](const Error& e) { EXPECT_NE(dynamic_cast<const JsonTypeError*>(&e), nullptr); }, nullptr},
      {"DecodingError", [] { JSONDecoder().decode<UserGetFaqResponse>(R"({"faqs": [{"title": 1}]})"); },
       [](const Error& e) {
         const auto* d = dynamic_cast<const DecodingError*>(&e);
         ASSERT_NE(d, nullptr);
         EXPECT_EQ(d->kind(), Kind::typeMismatch);
         EXPECT_EQ(renderCodingPath(d->codingPath()), "faqs[0].title");
         EXPECT_FALSE(d->location()) << "only text that is not JSON has a location";
       },
       nullptr},
      {"EncodingError", [] { JSONEncoder().encode(FaqModel{.title = "\xc0\xaf", .content = "", .faqType = 0}); },
       [](const Error& e) {
         const auto* d = dynamic_cast<const EncodingError*>(&e);
         ASSERT_NE(d, nullptr);
         EXPECT_EQ(renderCodingPath(d->codingPath()), "title");
       },
       nullptr},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    const auto what = caughtAsQbError(c.raise, c.check);
    ASSERT_TRUE(what) << "nothing thrown";
    if (c.what) {
      EXPECT_EQ(*what, c.what);
    }
  }
}

const char* const kValidReply =
    R"({"config": {"auto_update": {"has_update": true, "force_update": false}, "expert_default_count": 3, )"
    R"("timestamp": 1700000000, "legal_config": {"agreement_version": 2, "privacy_policy_version": 5}}, )"
    R"("other_configs": {}})";

TEST(Errors, AMalformedReplyNamesWhereItGoesWrongInBothFaces) {
  ASSERT_NO_THROW(JSONDecoder().decode<UserGetConfigResponse>(kValidReply));
  const std::string deepPrefix = R"({"other_configs": {"x": )";
  struct Case {
    const char* label;
    std::string text;
    SourceLocation location;
    const char* reason;
  } cases[] = {
      {"unexpected character", R"({"config": {"auto_update": x}})", {27, 1, 28}, "unexpected character 'x'"},
      {"invalid UTF-8", "{\"config\": {\"share_app_url\": \"a\xff\"}}", {31, 1, 32}, "not valid UTF-8"},
      {"lone surrogate escape", R"({"config": {"share_app_url": "\ud800x"}})", {30, 1, 31}, "unpaired surrogate"},
      {"invalid escape", R"({"config": {"share_app_url": "a\x"}})", {31, 1, 32}, "invalid escape"},
      {"control character", "{\"config\": {\"share_app_url\": \"a\tb\"}}", {31, 1, 32}, "unescaped byte 0x09"},
      {"truncated", R"({"config": {"auto_update": {"has_update": tr)", {44, 1, 45}, "ends inside a value"},
      {"empty", "", {0, 1, 1}, "there is no value"},
      {"trailing content", std::string(kValidReply) + " {}", {217, 1, 218}, "unexpected character '{' after"},
      {"too deep", deepPrefix + std::string(300, '['), {deepPrefix.size() + kMaxJsonDepth - 3, 1, 278}, "nests deeper"},
      {"number out of range", R"({"config": {"expert_default_count": 1e400}})", {36, 1, 37}, "cannot be represented"},
      {"integer out of range",
       R"({"config": {"timestamp": -9223372036854775809}})",
       {25, 1, 26},
       "cannot be represented"},
      {"several lines",
       "{\n  \"config\": {\n    \"expert_default_count\": 3,,\n  }\n}",
       {46, 3, 31},
       "unexpected character ','"},
      {"after a CRLF line", "{\r\n  \"config\": nul\r\n}", {18, 2, 16}, "unexpected byte 0x0D"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.label);
    const std::string where = " at " + renderSourceLocation(c.location) + ".";
    auto expect = [&](const std::function<void()>& decode) {
      try {
        decode();
        ADD_FAILURE() << "decoded";
      } catch (const DecodingError& e) {
        EXPECT_EQ(e.kind(), Kind::dataCorrupted);
        EXPECT_TRUE(e.codingPath().empty());
        EXPECT_EQ(e.location(), c.location);
        EXPECT_NE(e.debugDescription().find(c.reason), std::string::npos) << e.debugDescription();
        EXPECT_TRUE(e.debugDescription().ends_with(where)) << e.debugDescription();
        EXPECT_TRUE(std::string_view(e.what()).ends_with(where)) << e.what();
      }
    };
    expect([&] { parseJsonMap(c.text); });
    expect([&] { JSONDecoder().decode<UserGetConfigResponse>(c.text); });
  }
}

TEST(Errors, TheLocationTravelsWithTheErrorAndIsNamedPlainly) {
  const DecodingError error(Kind::dataCorrupted, {}, "bad at line 2, column 1 (byte 5).", SourceLocation{5, 2, 1});
  const DecodingError outer = error.prefixed("config");
  EXPECT_EQ(outer.location(), error.location());
  EXPECT_EQ(renderCodingPath(outer.codingPath()), "config");
  EXPECT_STREQ(outer.what(), "dataCorrupted at config: bad at line 2, column 1 (byte 5).");

  struct Case {
    const char* text;
    std::size_t offset;
    SourceLocation location;
  } cases[] = {
      {"", 0, {0, 1, 1}},
      {"abc", 3, {3, 1, 4}},
      {"a\nb", 1, {1, 1, 2}},
      {"a\nb", 2, {2, 2, 1}},
      {"a\n\n\xc3\xa9x", 5, {5, 3, 3}},  // columns count bytes
      {"ab", 9, {2, 1, 3}},              // past the end: the end
  };
  for (const auto& c : cases) {
    EXPECT_EQ(SourceLocation::of(c.text, c.offset), c.location) << c.text << " @" << c.offset;
  }
}

bool parserAccepts(const std::string& text) {
  try {
    parseJson(text);
    return true;
  } catch (const DecodingError& e) {
    EXPECT_EQ(e.kind(), Kind::dataCorrupted);
    // Every text the parser refuses is one where the scan finds the fault.
    EXPECT_TRUE(e.location()) << "no location for: " << testing::PrintToString(text);
    return false;
  }
}

TEST(Errors, TheFaultScanJudgesTextsAsTheParserDoes) {
  // The parser's own edges, which the scan must share.
  auto nest = [](std::size_t levels, const std::string& inner) {
    return std::string(levels, '[') + inner + std::string(levels, ']');
  };
  // 2^1024 - 2^970: halfway between the largest double and the next power of two, which it rounds to.
  const std::string dblMaxMidpoint =
      "1797693134862315807937289714053034150799341327100378269361737789804449682927647509466490179775872070963"
      "3028641669288791094655554785194040263065748867150582068190890200070838367627385484581771153176447573027"
      "0069855571366959622842914819860834936475292719074168444365510704342711559699508093042880177904174497792";
  struct Case {
    std::string text;
    bool valid;
  } cases[] = {
      {nest(kMaxJsonDepth - 1, "1"), true},
      {nest(kMaxJsonDepth, "1"), false},
      {nest(kMaxJsonDepth, ""), true},  // an empty container takes no level
      {nest(kMaxJsonDepth - 1, "{ }"), true},
      {nest(kMaxJsonDepth, "{}"), false},
      {std::string(kMaxJsonDepth + 1, '['), false},
      {"-9223372036854775808", true},
      {"-9223372036854775809", false},
      {"18446744073709551615", true},
      {"18446744073709551616", false},
      {"100000000000000000000", false},
      {"-0", true},
      {"1.7976931348623157e308", true},
      {"-1.7976931348623159e308", false},
      {dblMaxMidpoint.substr(0, dblMaxMidpoint.size() - 1) + "1.9999", true},
      {dblMaxMidpoint, false},
      {"0.0000000000000000000000000000001e340", false},
      {"1e-400", true},
      {"4.9e-324", true},
      {"0e99999999999999999999999", true},
      {"1e99999999999999999999999", false},
      {"-0.0e-999", true},
      {"1E+2", true},
      {"01", false},
      {"-", false},
      {"1.", false},
      {"1.e2", false},
      {".5", false},
      {"+1", false},
      {"[1,]", false},
      {R"({"a":1,})", false},
      {R"({"a" 1})", false},
      {"{1:2}", false},
      {"[true1]", false},
      {"nul", false},
      {" \t\r\n1 \n", true},
      {"\v1", false},
      {std::string("{}\0", 3), false},
      {"\xef\xbb\xbf{}", false},  // a byte order mark
      {R"("\ud800\udc00 \udbff\udfff \u0000 \/")", true},
      {R"("\ud800")", false},
      {R"("\udc00")", false},
      {R"("\ud800\u0041")", false},
      {R"("\ud800\ud800")", false},
      {R"("\u12G4")", false},
      {"\"\x7f\"", true},
      {"\"\x1f\"", false},
      {"\"\xc2\x80 \xdf\xbf\"", true},
      {"\"\xc1\xbf\"", false},
      {"\"\xe0\xa0\x80 \xed\x9f\xbf \xee\x80\x80\"", true},
      {"\"\xe0\x9f\xbf\"", false},
      {"\"\xed\xa0\x80\"", false},
      {"\"\xf0\x90\x80\x80 \xf4\x8f\xbf\xbf\"", true},
      {"\"\xf0\x8f\xbf\xbf\"", false},
      {"\"\xf4\x90\x80\x80\"", false},
      {"\"\xf5\x80\x80\x80\"", false},
      {"\"\x80\"", false},
      {"\"\xe2\x28\xa1\"", false},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(testing::PrintToString(c.text.substr(0, 80)));
    EXPECT_EQ(parserAccepts(c.text), c.valid);
    EXPECT_EQ(!detail::findJsonFault(c.text), c.valid);
  }

  // And texts broken at random: the scan finds a fault exactly when the parser refuses.
  const std::string seeds[] = {
      kValidReply,
      R"([1, -0.5e-3, 18446744073709551615, "a\"\\\/\b\f\n\r\t\u00e9\ud83d\ude00", true, false, null, {}, []])",
      "{\"caf\xc3\xa9\": [\"\xe2\x82\xac\", \"\xf0\x9f\x98\x80\"], \"n\": {\"m\": [[[{\"k\": 1e5}]]]}}",
  };
  const std::string bytes = std::string("{}[]\",:\\ u0123456789-+.eEtrufalsn\n\t", 36) +
                            std::string("\0\x1f\x7f\x80\xbf\xc0\xc2\xe0\xed\xf0\xf4\xf5\xff", 13);
  std::mt19937 random(7);
  for (int round = 0; round < 20000; ++round) {
    std::string text = seeds[random() % std::size(seeds)];
    for (int edits = 1 + static_cast<int>(random() % 3); edits > 0 && !text.empty(); --edits) {
      const std::size_t at = random() % text.size();
      const char byte = bytes[random() % bytes.size()];
      switch (random() % 4) {
        case 0: text[at] = byte; break;
        case 1: text.insert(text.begin() + static_cast<std::ptrdiff_t>(at), byte); break;
        case 2: text.erase(at, 1); break;
        case 3: text.resize(at); break;
      }
    }
    const bool accepted = parserAccepts(text);
    ASSERT_EQ(!detail::findJsonFault(text), accepted) << testing::PrintToString(text);
  }
}

}  // namespace
}  // namespace qb
