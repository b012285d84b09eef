// Customer support end to end: the FAQ, automatic replies and tickets through every face against the
// mock service, whose replies must decode in both faces.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/support/dict/SupportDict.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetUserRequest.hpp>
#include <map>
#include <set>

#include "host/MockSession.hpp"

namespace qb {
namespace {

struct Account : MockSession {
  std::int64_t userId = client.send(UserGetUserRequest{}).user.userId;
  JsonList tickets(std::int64_t id) const {
    const std::string url = service.baseUrl() + "_mock/tickets/" + std::to_string(id);
    return parseJsonMap(host::makeCurlTransport()->send(host::HttpRequest{.method = "GET", .url = url}).body)
        .at("tickets")
        .as_array();
  }
};

// What a face read of an FAQ reply: article uids by category uid, and every article's light page.
struct Faq {
  std::map<std::string, std::vector<std::string>> articles;
  std::set<std::string> pages;
  bool operator==(const Faq&) const = default;
};

template <class Request>
Faq typedFaq(Account& account, LanguageCode language, const char* country) {
  Faq faq;
  for (const auto& category :
       account.client.send(Request{.languageCode = language, .countryCode = country}).cmsFaqCategoryList) {
    for (const auto& article : category.cmsFaqArticleList) {
      faq.articles[category.uid].push_back(article.uid);
      faq.pages.insert(article.cmsStaticUrl.lightUrl);
    }
  }
  return faq;
}

template <class Message>
Faq dictionaryFaq(Account& account, std::int64_t language, const char* country) {
  const auto message = Message::initWithData(language, JsonValue(country));
  account.client.send(*message);
  Faq faq;
  // Getters return copies: keep each list while walking it.
  const auto categories = message->cmsFaqCategoryList().value();
  for (const auto& category : categories) {
    const std::string uid(category->uid()->as_string());
    const auto articles = category->cmsFaqArticleList().value();
    for (const auto& article : articles) {
      faq.articles[uid].emplace_back(article->uid()->as_string());
      faq.pages.emplace(article->cmsStaticUrl()->lightUrl()->as_string());
    }
  }
  return faq;
}

bool allPagesUnder(const Faq& faq, const std::string& folder) {
  for (const auto& page : faq.pages) {
    if (page.find(folder) == std::string::npos) return false;
  }
  return !faq.pages.empty();
}

TEST(SupportMock, BothFaqEndpointsReadAlikeInBothFacesWithPagesInTheCallersLocale) {
  Account account;
  const Faq all = typedFaq<SupportGetFaqFromCmsRequest>(account, LanguageCode::fr, "ca");
  const Faq popular = typedFaq<SupportGetPopularFaqFromCmsRequest>(account, LanguageCode::fr, "ca");
  EXPECT_EQ(dictionaryFaq<SPSupportGetFaqFromCmsMessage>(account, 5, "ca"), all);
  EXPECT_EQ(dictionaryFaq<SPSupportGetPopularFaqFromCmsMessage>(account, 5, "ca"), popular);
  EXPECT_TRUE(allPagesUnder(all, "/faq/fr-CA/"));
  EXPECT_TRUE(allPagesUnder(popular, "/faq/fr-CA/"));
  EXPECT_LT(popular.pages.size(), all.pages.size());
  EXPECT_TRUE(std::includes(all.pages.begin(), all.pages.end(), popular.pages.begin(), popular.pages.end()))
      << "the popular articles are some of the catalogue's";
  // A language the service does not know and a country that is no code read as English, not a failure.
  EXPECT_TRUE(allPagesUnder(dictionaryFaq<SPSupportGetFaqFromCmsMessage>(account, 99, "Narnia"), "/faq/en/"));
}

TEST(SupportMock, AQuestionIsClassifiedByItsKeywordsAndAnsweredWithArticlesOnItsTopic) {
  using C = AutoReplyClassification;
  const std::pair<const char*, C> cases[] = {
      {"How often should I WATER a fern?", C::garden},
      {"Can the app identify mushrooms?", C::ability},
      {"Which plant would you recommend for a dark room?", C::recommend},
      {"The app crashes when I open the camera", C::technicalIssues},
      {"This is terrible service, I want to complain", C::complain},
      {"It identified my rose as a tulip, that's wrong", C::incorrectResult},
      {"How do I get premium?", C::subscribe},
      {"I need to restore my subscription on a new phone", C::restore},
      {"I was charged and want a refund for my subscription", C::refund},
      {"Please cancel my subscription", C::unsubscribe},
      {"Thanks, I love this app!", C::appraisal},
      {"What is the capital of Peru?", C::other},
      {"Is it uncancelled?", C::other},  // a keyword inside a word is no keyword
  };
  Account account;
  for (const auto& [question, topic] : cases) {
    SCOPED_TRACE(question);
    const auto typed = account.client.send(SupportGetCustomerSupportAutoReplyRequest{
        .languageCode = LanguageCode::de, .countryCode = "DE", .content = question});
    EXPECT_EQ(typed.classification, topic);
    ASSERT_TRUE(typed.autoReplyArticle.has_value());
    EXPECT_EQ(typed.autoReplyArticle->empty(), topic == C::other) << "articles for every topic but other";
    for (const auto& article : *typed.autoReplyArticle) {
      EXPECT_NE(article.cmsStaticUrl->darkUrl.find("/faq/de-DE/"), std::string::npos);
    }

    const auto message =
        SPSupportGetCustomerSupportAutoReplyMessage::initWithData(6, JsonValue("DE"), JsonValue(question));
    account.client.send(*message);
    EXPECT_EQ(message->classification(), static_cast<std::int64_t>(topic));
    EXPECT_EQ(message->autoReplyArticle()->size(), typed.autoReplyArticle->size());
  }
}

TEST(SupportMock, TicketsFromEveryMessageAreKeptPerAccountUntilItIsDeleted) {
  Account account;
  const JsonList images{"https://i.example/1.jpg", "https://i.example/2.jpg"};
  const JsonList tags{"leaf", "urgent"};
  const JsonMap extra{{"app", "2.1.0"}, {"tries", 3}, {"beta", true}};
  account.client.send(*SPSupportSendSupportTicketMessage::initWithData(
      JsonValue("a@example.com"), 1, 3, JsonValue("JP"), JsonValue("first"), images, tags, extra));
  account.client.send(*QBSupportSendSupportTicketMessage::initWithData(JsonValue("b@example.com"), 2, 0,
                                                                       JsonValue("US"), std::nullopt, images, tags));
  account.client.send(SupportSendSupportTicketRequest{
      .email = "c@example.com",
      .supportType = SupportType::expertSupport,
      .languageCode = LanguageCode::fr,
      .countryCode = "FR",
      .content = "third",
      .images = std::vector<std::string>{"https://i.example/1.jpg", "https://i.example/2.jpg"},
      .tags = std::vector<std::string>{"leaf", "urgent"},
      .extraFields = std::map<std::string, AnyCodable>{
          {"app", AnyCodable{"2.1.0"}}, {"tries", AnyCodable{3}}, {"beta", AnyCodable{true}}}});

  const JsonList tickets = account.tickets(account.userId);
  ASSERT_EQ(tickets.size(), 3u);
  const char* emails[] = {"a@example.com", "b@example.com", "c@example.com"};
  const std::int64_t types[] = {1, 2, 3};
  for (std::size_t i = 0; i < 3; ++i) {
    SCOPED_TRACE(emails[i]);
    const JsonMap& ticket = tickets[i].as_object();
    EXPECT_EQ(ticket.at("email"), JsonValue(emails[i])) << "kept in the order sent";
    EXPECT_EQ(ticket.at("support_type"), JsonValue(types[i]));
    EXPECT_EQ(ticket.at("images"), JsonValue(images));
    EXPECT_EQ(ticket.at("tags"), JsonValue(tags));
    EXPECT_EQ(ticket.contains("extra_fields"), i != 1) << "the older message has no extra fields";
    if (i != 1) {
      EXPECT_EQ(ticket.at("extra_fields"), JsonValue(extra));
    }
  }
  EXPECT_EQ(tickets[0].at("content"), JsonValue("first"));
  EXPECT_FALSE(tickets[1].as_object().contains("content"));
  EXPECT_EQ(tickets[2].at("country_code"), JsonValue("FR"));

  EXPECT_TRUE(account.tickets(account.userId + 1).empty()) << "another account has none";
  account.client.send(UserDeleteAccountRequest{});
  EXPECT_TRUE(account.tickets(account.userId).empty()) << "deleting the account forgets its tickets";
}

}  // namespace
}  // namespace qb
