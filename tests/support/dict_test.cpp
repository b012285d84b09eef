// The Dictionary face of the support domain: its records (round trip, required checks in order, nested
// failures) and its messages (parameters, required parameters, the lists of a ticket, the replies read).
#include <gtest/gtest.h>

#include <QBComponentAPI/support/dict/SupportDict.hpp>
#include <functional>
#include <string>
#include <vector>

#include "dict_helpers.hpp"
#include "support/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures::support;

JsonValue text(const char* s) { return JsonValue(s); }

struct ModelRow {
  const char* name;
  Reader read;
  std::string full;
  // Required keys in check order, each with the reason its absence raises.
  std::vector<std::pair<const char*, const char*>> required;
};

// clang-format off
const std::vector<ModelRow>& modelRows() {
  static const std::vector<ModelRow> table{
      {"AutoReplyArticle", reader<SPAPIAutoReplyArticle>(), kAutoReplyArticle, {}},
      {"CmsFaqArticle", reader<SPAPICmsFaqArticle>(), kCmsFaqArticle,
       {{"uid", "uid is missing in model CmsFaqArticle"},
        {"title", "title is missing in model CmsFaqArticle"},
        {"summary", "summary is missing in model CmsFaqArticle"},
        {"image_url", "imageUrl is missing in model CmsFaqArticle"},
        {"type", "type is missing in model CmsFaqArticle"},
        {"feed_type", "feedType is missing in model CmsFaqArticle"},
        {"cms_static_url", "CmsStaticUrl is missing in model CmsFaqArticle"}}},
      {"CmsFaqCategory", reader<SPAPICmsFaqCategory>(), kCmsFaqCategory,
       {{"uid", "uid is missing in model CmsFaqCategory"},
        {"title", "title is missing in model CmsFaqCategory"},
        {"summary", "summary is missing in model CmsFaqCategory"},
        {"image_url", "imageUrl is missing in model CmsFaqCategory"},
        {"cms_faq_article_list", "cmsFaqArticleList is missing in model CmsFaqCategory"}}},
  };
  return table;
}
// clang-format on

TEST(SupportDictModels, RoundTripAndRaiseForEachMissingOrNullRequiredFieldInOrder) {
  for (const auto& row : modelRows()) {
    SCOPED_TRACE(row.name);
    const auto model = row.read(parseJsonMap(row.full));
    EXPECT_EQ(model->modelName(), row.name);
    EXPECT_EQ(toJson(model->toDictionary()), toJson(parseJson(row.full))) << "every key, in declared order";
    expectRequiredKeysRaise(row.read, row.full, row.required);
  }
}

TEST(SupportDictModels, CategoryAcceptsAnEmptyArticleListAndFailsWithAFailingArticle) {
  JsonMap category = parseJsonMap(kCmsFaqCategory);
  category["cms_faq_article_list"] = JsonList{};
  EXPECT_TRUE(SPAPICmsFaqCategory::initWithJsonObject(category)->cmsFaqArticleList()->empty());

  JsonValue broken = parseJson(kCmsFaqCategory);
  broken.at_pointer("/cms_faq_article_list/0").as_object().erase("cms_static_url");
  EXPECT_EQ(reasonOf([&] { SPAPICmsFaqCategory::initWithJsonObject(broken); }),
            "CmsStaticUrl is missing in model CmsFaqArticle");
}

// --- Messages -------------------------------------------------------------------------------------------

using AutoReply = SPSupportGetCustomerSupportAutoReplyMessage;
using Faq = SPSupportGetFaqFromCmsMessage;
using PopularFaq = SPSupportGetPopularFaqFromCmsMessage;
using Ticket = SPSupportSendSupportTicketMessage;
using OlderTicket = QBSupportSendSupportTicketMessage;

std::shared_ptr<Ticket> ticket(std::optional<JsonList> images, std::optional<JsonMap> extraFields) {
  return Ticket::initWithData(text("fern@example.com"), 1, 3, text("JP"), text("Help"), std::move(images), std::nullopt,
                              std::move(extraFields));
}
std::shared_ptr<OlderTicket> olderTicket(std::optional<JsonList> images) {
  return OlderTicket::initWithData(text("fern@example.com"), 1, 3, text("JP"), text("Help"), std::move(images),
                                   std::nullopt);
}

// clang-format off
const std::vector<DictMessageRow>& messageRows() {
  static const std::vector<DictMessageRow> table{
      {"GetCustomerSupportAutoReply", [] { return AutoReply::initWithData(2, text("US"), text("yellow leaves")); },
       R"({"language_code":2,"country_code":"US","content":"yellow leaves"})",
       {{unset(&AutoReply::setCountryCode), "countryCode is missing in model GetCustomerSupportAutoReply"},
        {unset(&AutoReply::setContent), "content is missing in model GetCustomerSupportAutoReply"}}},
      {"GetFaqFromCms", [] { return Faq::initWithData(0, text("GB")); },
       R"({"language_code":0,"country_code":"GB"})",
       {{unset(&Faq::setCountryCode), "countryCode is missing in model GetFaqFromCms"}}},
      {"GetPopularFaqFromCms", [] { return PopularFaq::initWithData(5, text("FR")); },
       R"({"language_code":5,"country_code":"FR"})",
       {{unset(&PopularFaq::setCountryCode), "countryCode is missing in model GetPopularFaqFromCms"}}},
      // With every required parameter gone, the e-mail address is named before the country.
      {"SendSupportTicket", [] { return ticket(std::nullopt, JsonMap{{"app", "2.1.0"}, {"n", 1}}); },
       R"({"email":"fern@example.com","support_type":1,"language_code":3,"country_code":"JP","content":"Help",)"
       R"("extra_fields":"{\"app\":\"2.1.0\",\"n\":1}"})",
       {{unset(&Ticket::setEmail), "email is missing in model SendSupportTicket"},
        {unset(&Ticket::setCountryCode), "countryCode is missing in model SendSupportTicket"}}},
      {"SendSupportTicket without extra fields", [] { return olderTicket(std::nullopt); },
       R"({"email":"fern@example.com","support_type":1,"language_code":3,"country_code":"JP","content":"Help"})",
       {{unset(&OlderTicket::setEmail), "email is missing in model SendSupportTicket"},
        {unset(&OlderTicket::setCountryCode), "countryCode is missing in model SendSupportTicket"}}},
  };
  return table;
}
// clang-format on

TEST(SupportDictMessages, BuildTheirParametersAndRaiseForEachMissingRequiredOne) { expectMessageRows(messageRows()); }

TEST(SupportDictMessages, TicketListsTravelAsJsonTextAndOnlyTheNewerTicketHasExtraFields) {
  const JsonList images{"https://i.example/1.jpg", "https://i.example/2.jpg"};
  const auto sp = ticket(images, JsonMap{{"plan", "pro"}});
  sp->setTags(JsonList{"leaf"});
  const auto qb = olderTicket(images);
  qb->setTags(JsonList{"leaf"});
  for (const JsonMap& params : {sp->getParams(), qb->getParams()}) {
    for (const auto& [key, list] :
         {std::pair{"images", JsonValue(images)}, std::pair{"tags", JsonValue(JsonList{"leaf"})}}) {
      const JsonValue& sent = params.at(key);
      ASSERT_TRUE(sent.is_string()) << key << " is one string, not a list";
      EXPECT_EQ(parseJson(std::string_view(sent.get_string().data(), sent.get_string().size())), list) << key;
    }
  }
  EXPECT_EQ(sp->getParams().at("extra_fields"), JsonValue(R"({"plan":"pro"})"));
  EXPECT_FALSE(ticket(images, std::nullopt)->getParams().contains("extra_fields"));
  EXPECT_FALSE(qb->getParams().contains("extra_fields"));
  EXPECT_EQ(sp->api(), qb->api());
}

TEST(SupportDictMessages, AutoReplyClassificationIsTheReplysIntegerUnchecked) {
  struct Case {
    const char* reply;
    std::int64_t classification;  // -1: the reply cannot be read (JsonTypeError)
  };
  const Case cases[] = {
      {R"({"classification": 12})", 12},
      {R"({"classification": "12"})", 12},
      {R"({})", 0},
      {R"({"classification": null})", -1},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.reply);
    const auto message = AutoReply::initWithData(0, text("US"), text("q"));
    message->parseResponse(parseJsonMap(kAutoReplyReply));
    if (c.classification < 0) {
      EXPECT_THROW(message->parseResponse(parseJsonMap(c.reply)), JsonTypeError);
      EXPECT_EQ(message->classification(), 4) << "a failed reply leaves the results it had";
      EXPECT_EQ(message->autoReplyArticle()->size(), 2u);
    } else {
      message->parseResponse(parseJsonMap(c.reply));
      EXPECT_EQ(message->classification(), c.classification);
    }
  }
}

// Both FAQ messages read the same reply; a null or absent list leaves the one read before.
template <class M>
void expectFaqRead() {
  const auto message = M::initWithData(0, text("US"));
  message->parseResponse(JsonMap{});
  EXPECT_FALSE(message->cmsFaqCategoryList());
  message->parseResponse(parseJsonMap(kFaqReply));
  ASSERT_EQ(message->cmsFaqCategoryList()->size(), 1u);
  EXPECT_EQ((*(*message->cmsFaqCategoryList())[0]->cmsFaqArticleList())[0]->feedType(), JsonValue(2));
  message->parseResponse(parseJsonMap(R"({"cms_faq_category_list": null})"));
  EXPECT_EQ(message->cmsFaqCategoryList()->size(), 1u);
}

TEST(SupportDictMessages, RepliesFillTheirListsAndAbsentListsStayAsTheyWere) {
  const auto autoReply = AutoReply::initWithData(0, text("US"), text("q"));
  autoReply->parseResponse(parseJsonMap(R"({"classification": 1})"));
  EXPECT_FALSE(autoReply->autoReplyArticle());
  autoReply->parseResponse(parseJsonMap(kAutoReplyReply));
  ASSERT_EQ(autoReply->autoReplyArticle()->size(), 2u);
  EXPECT_EQ((*autoReply->autoReplyArticle())[1]->cmsStaticUrl()->lightUrl(), JsonValue("https://s.example/l"));
  autoReply->parseResponse(parseJsonMap(R"({"auto_reply_article": null})"));
  EXPECT_EQ(autoReply->autoReplyArticle()->size(), 2u);
  EXPECT_EQ(autoReply->classification(), 0);

  expectFaqRead<Faq>();
  expectFaqRead<PopularFaq>();
}

}  // namespace
}  // namespace qb
