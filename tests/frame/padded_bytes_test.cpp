// Replies kept with the parser's padding decode where they lie, with exactly the results and errors of
// the same text handed over as a plain string.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/PaddedBytes.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>
#include <string>

namespace qb {
namespace {

// The padding must still be there, and zero, after any sequence of appends and reserves.
TEST(PaddedBytes, KeepsZeroPaddingAfterEveryAppend) {
  PaddedBytes bytes;
  EXPECT_TRUE(bytes.empty());
  std::string expected;
  for (int i = 0; i < 200; ++i) {
    const std::string chunk(static_cast<std::size_t>(i % 7 + 1), static_cast<char>('a' + i % 26));
    if (i == 50) bytes.reserve(10000);
    bytes.append(chunk);
    expected += chunk;
    ASSERT_EQ(bytes.view(), expected);
    for (std::size_t k = 0; k < PaddedBytes::kPadding; ++k) ASSERT_EQ(bytes.data()[bytes.size() + k], '\0');
  }
  bytes.clear();
  EXPECT_TRUE(bytes.empty());
  EXPECT_EQ(bytes.view(), "");
}

// A buffer that never held anything has no padding to lend; it must be copied like any other text.
TEST(PaddedBytes, AnEmptyBufferIsNotReadInPlace) {
  EXPECT_FALSE(JsonText(PaddedBytes()).padded);
  EXPECT_TRUE(JsonText(PaddedBytes("")).padded);
  EXPECT_THROW(JSONDecoder().decode<UserGetConfigResponse>(PaddedBytes()), DecodingError);
}

std::string configReply(std::string_view version) {
  return R"({"config":{"auto_update":{"has_update":true,"force_update":false},"expert_default_count":3,)"
         R"("share_app_url":"u","timestamp":1700000000,"legal_config":{"agreement_url":"t",)"
         R"("agreement_version":4,"privacy_policy_version":)" +
         std::string(version) + R"(}},"other_configs":{"big":9007199254740993}})";
}

// Each reply decodes from PaddedBytes as from a string: the same record, or the same error (kind, coding
// path and, for text that is not JSON, the same location).
TEST(PaddedBytes, DecodesLikePlainText) {
  const std::vector<std::string> replies{
      configReply("9007199254740993"),
      configReply("\"7\""),
      configReply("7") + "  trailing",
      R"({"config":{}})",
      R"({"config":{"legal_config":{"privacy_policy_version":1,"terms_of_use_version":)",
      "",
  };
  for (const std::string& text : replies) {
    SCOPED_TRACE(text);
    const PaddedBytes wire(text);
    std::optional<UserGetConfigResponse> fromText, fromWire;
    std::string textError, wireError;
    try {
      fromText = JSONDecoder().decode<UserGetConfigResponse>(text);
    } catch (const DecodingError& e) {
      textError = e.what();
    }
    try {
      fromWire = JSONDecoder().decode<UserGetConfigResponse>(wire);
    } catch (const DecodingError& e) {
      wireError = e.what();
    }
    EXPECT_EQ(fromText, fromWire);
    EXPECT_EQ(textError, wireError);
    EXPECT_EQ(fromText.has_value(), textError.empty());
  }
  EXPECT_EQ(JSONDecoder()
                .decode<UserGetConfigResponse>(PaddedBytes(configReply("9007199254740993")))
                .config.legalConfig.privacyPolicyVersion,
            9007199254740993);
}

TEST(PaddedBytes, ParsesMapsLikePlainText) {
  const std::string text = R"({"id":18446744073709551615,"name":"Fern","nested":{"list":[1,2.5,null]}})";
  EXPECT_EQ(parseJsonMap(PaddedBytes(text)), parseJsonMap(text));
  EXPECT_THROW(parseJsonMap(PaddedBytes(R"({"a":)")), DecodingError);
}

}  // namespace
}  // namespace qb
