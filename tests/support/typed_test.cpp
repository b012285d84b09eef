// The Typed face of the support domain: its records and responses (round trip, required and optional
// members, the classification's fallback), its requests' exact bodies, and its two enumerations.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/support/enums/SupportEnums.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>
#include <functional>
#include <limits>

#include "support/Fixtures.hpp"
#include "typed_helpers.hpp"

namespace qb {
namespace {

using namespace fixtures::support;

const std::vector<RecordRow>& rows() {
  static const std::vector<RecordRow> table{
      recordRow<AutoReplyArticleModel>("AutoReplyArticle", kAutoReplyArticle, {}),
      recordRow<CmsFaqArticleModel>("CmsFaqArticle", kCmsFaqArticle,
                                    {"uid", "title", "summary", "image_url", "type", "feed_type", "cms_static_url"}),
      recordRow<CmsFaqCategoryModel>("CmsFaqCategory", kCmsFaqCategory,
                                     {"uid", "title", "summary", "image_url", "cms_faq_article_list"}),
      recordRow<SupportGetCustomerSupportAutoReplyResponse>("GetCustomerSupportAutoReplyResponse", kAutoReplyReply,
                                                            {"classification"}),
      recordRow<SupportGetFaqFromCmsResponse>("GetFaqFromCmsResponse", kFaqReply, {"cms_faq_category_list"}),
      recordRow<SupportGetPopularFaqFromCmsResponse>("GetPopularFaqFromCmsResponse", kFaqReply,
                                                     {"cms_faq_category_list"}),
      recordRow<SupportSendSupportTicketResponse>("SendSupportTicketResponse", R"({"ticket": 1})", {}),
  };
  return table;
}

TEST(SupportTypedRecords, RoundTripAndRequireTheirNonOptionalMembers) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    expectRequiredKeysFail(row.name, full, row.required, row.roundTrip);
    SCOPED_TRACE(row.name);
    row.roundTrip(row.full);
    JsonMap minimal;
    for (const char* key : row.required) minimal[key] = full.at(key);
    row.roundTrip(toJson(minimal));
    for (const auto& member : full) {
      if (!minimal.contains(member.key())) minimal[member.key()] = nullptr;  // null optionals are absent
    }
    row.roundTrip(toJson(minimal));
  }
}

TEST(SupportTypedRecords, AnEmptyArticleListIsAList) {
  JsonMap category = parseJsonMap(kCmsFaqCategory);
  category["cms_faq_article_list"] = JsonList{};
  EXPECT_TRUE(JSONDecoder().decode<CmsFaqCategoryModel>(toJson(category)).cmsFaqArticleList.empty());
}

// A missing or null classification fails like any required member (see the table above).
TEST(SupportTypedRecords, ClassificationFallsBackToOtherButMustBeAnInteger) {
  using Response = SupportGetCustomerSupportAutoReplyResponse;
  const struct {
    JsonValue raw;
    AutoReplyClassification decoded;
  } known[] = {
      {0, AutoReplyClassification::other},
      {11, AutoReplyClassification::appraisal},
      {12, AutoReplyClassification::other},
      {-1, AutoReplyClassification::other},
      {std::numeric_limits<std::int64_t>::min(), AutoReplyClassification::other},
  };
  for (const auto& c : known) {
    const std::string json = toJson(JsonMap{{"classification", c.raw}});
    EXPECT_EQ(JSONDecoder().decode<Response>(json).classification, c.decoded) << json;
    EXPECT_EQ(JsonValueDecoder().decode<Response>(parseJson(json)).classification, c.decoded) << json;
    EXPECT_FALSE(JSONDecoder().decode<Response>(json).autoReplyArticle) << "absent, not empty";
  }
  std::string path;
  EXPECT_EQ(decodingFailure([] { JSONDecoder().decode<Response>(R"({"classification": "12"})"); }, &path),
            DecodingError::Kind::typeMismatch);
  EXPECT_EQ(path, "classification");
}

const std::vector<RequestRow>& requestRows() {
  static const std::vector<RequestRow> table{
      {[] {
         return describe(SupportGetCustomerSupportAutoReplyRequest{
             .languageCode = LanguageCode::de, .countryCode = "DE", .content = "Gelbe \"Blätter\""});
       },
       "v3/support/get_customer_support_auto_reply",
       R"({"language_code":6,"country_code":"DE","content":"Gelbe \"Blätter\""})"},
      {[] { return describe(SupportGetFaqFromCmsRequest{.languageCode = LanguageCode::ja, .countryCode = "JP"}); },
       "v3/support/get_faq_from_cms", R"({"language_code":3,"country_code":"JP"})"},
      {[] {
         return describe(SupportSendSupportTicketRequest{.email = "fern@example.com",
                                                         .supportType = SupportType::expertSupport,
                                                         .languageCode = LanguageCode::fr,
                                                         .countryCode = "FR"});
       },
       "v3/support/send_support_ticket",
       R"({"email":"fern@example.com","support_type":3,"language_code":5,"country_code":"FR"})"},
      // The lists go out as JSON lists and the extra fields as an object, not as the JSON text of them.
      {[] {
         return describe(SupportSendSupportTicketRequest{
             .email = "fern@example.com",
             .supportType = SupportType::vipSupport,
             .languageCode = LanguageCode::fr,
             .countryCode = "FR",
             .content = "Help",
             .images = std::vector<std::string>{"https://i.example/1.jpg", "https://i.example/2.jpg"},
             .tags = std::vector<std::string>{},
             .extraFields = std::map<std::string, AnyCodable>{{"plan", {"pro"}}, {"n", {parseJson("[1,null]")}}}});
       },
       "v3/support/send_support_ticket",
       R"({"email":"fern@example.com","support_type":1,"language_code":5,"country_code":"FR","content":"Help",)"
       R"("images":["https://i.example/1.jpg","https://i.example/2.jpg"],"tags":[],)"
       R"("extra_fields":{"n":[1,null],"plan":"pro"}})"},
  };
  return table;
}

TEST(SupportTypedRequests, EncodeExactly) { expectRequestRows(requestRows()); }

// --- Enumerations -----------------------------------------------------------------------------------------

template <class E>
concept ListsItsCases = requires {
  allCases<E>();
};

TEST(SupportEnums, RawValuesAreCasePositionsAndOnlyTheClassificationFallsBack) {
  const auto classifications = allCases<AutoReplyClassification>();
  ASSERT_EQ(classifications.size(), 12u);
  for (std::size_t i = 0; i < classifications.size(); ++i) {
    EXPECT_EQ(rawValue(classifications[i].value), static_cast<std::int64_t>(i)) << classifications[i].name;
  }
  EXPECT_EQ(classifications[6].name, "incorrectResult");
  EXPECT_FALSE(fromRawValue<AutoReplyClassification>(12)) << "the fallback is for decoding only";

  ASSERT_EQ(std::size(EnumTraits<SupportType>::cases), 4u);
  EXPECT_EQ(fromRawValue<SupportType>(3), SupportType::expertSupport);
  EXPECT_EQ(caseName(SupportType::vipUnsubscription), "vipUnsubscription");
  EXPECT_FALSE(fromRawValue<SupportType>(4));
  static_assert(ListsItsCases<AutoReplyClassification> && !ListsItsCases<SupportType>);
  try {
    enumFromDecoded<SupportType>(4);
    ADD_FAILURE() << "4 is no SupportType";
  } catch (const DecodingError& e) {
    EXPECT_EQ(e.debugDescription(), "Cannot initialize SupportType from invalid Int value 4");
  }
}

}  // namespace
}  // namespace qb
