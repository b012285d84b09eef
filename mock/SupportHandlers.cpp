// Customer support in the mock service: the FAQ from a small seeded catalogue, the same on every start;
// automatic replies that classify a question by its keywords; and tickets, kept per account in the order
// they arrived and readable through GET /_mock/tickets/<user id>.
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/enums/AutoReplyClassification.hpp>
#include <algorithm>
#include <cctype>
#include <charconv>
#include <iterator>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "mock/Handlers.hpp"

namespace qb::mock {
namespace {

using Topic = AutoReplyClassification;

constexpr const char* kImages = "https://cdn.example.invalid/support/";

struct FaqCategory {
  const char* uid;
  const char* title;
  const char* summary;
};

const FaqCategory kCategories[] = {
    {"identification", "Identifying plants", "Photos, results and what can be recognised"},
    {"care", "Plant care", "Watering, light and choosing plants"},
    {"subscription", "Subscription", "Buying, restoring, cancelling and refunds"},
    {"app", "Using the app", "Problems, feedback and reviews"},
};

// One article. `type` and `feed_type` are numbers the client passes through: here type 1 is a text
// article and 2 a video, feed_type 1 the help centre's feed. Every topic but `other` has an article.
struct FaqArticle {
  const char* uid;
  const char* category;
  const char* title;
  const char* summary;
  std::int64_t type;
  bool popular;
  std::vector<Topic> topics;
};

// clang-format off
const FaqArticle kArticles[] = {
    {"what-can-be-identified", "identification", "What can the app identify?",
     "Plants, flowers, trees and common diseases.", 1, true, {Topic::ability}},
    {"taking-a-good-photo", "identification", "How do I take a photo that identifies well?",
     "Fill the frame with one leaf or flower, in daylight.", 2, false, {Topic::ability, Topic::incorrectResult}},
    {"wrong-result", "identification", "The result looks wrong. What can I do?",
     "Retake the photo from another angle or tell us the right name.", 1, true, {Topic::incorrectResult}},
    {"watering-basics", "care", "How often should I water my plants?",
     "Water when the top few centimetres of soil are dry.", 1, true, {Topic::garden}},
    {"yellow-leaves", "care", "Why are the leaves turning yellow?",
     "Usually too much water or too little light.", 2, false, {Topic::garden}},
    {"choosing-a-plant", "care", "Which plant suits my home?",
     "Easy plants for low light, pets and beginners.", 1, false, {Topic::recommend}},
    {"subscribing", "subscription", "How do I subscribe?",
     "Choose a plan on the Premium screen.", 1, false, {Topic::subscribe}},
    {"restoring-purchases", "subscription", "How do I restore my purchase on a new phone?",
     "Sign in with the same store account and tap Restore.", 1, true, {Topic::restore, Topic::subscribe}},
    {"cancelling", "subscription", "How do I cancel my subscription?",
     "Subscriptions are cancelled in your store's account settings.", 1, true, {Topic::unsubscribe}},
    {"refunds", "subscription", "Can I get a refund?",
     "Refunds are granted by the store you paid through.", 1, false, {Topic::refund, Topic::unsubscribe}},
    {"app-not-working", "app", "The app crashes or does not load",
     "Update the app, then restart your phone.", 1, true, {Topic::technicalIssues}},
    {"contacting-us", "app", "How do I reach the support team?",
     "Send a ticket from Settings; we answer in a day.", 1, false, {Topic::complain, Topic::technicalIssues}},
    {"rating-the-app", "app", "How do I rate the app?",
     "Leave a review in your app store; thank you!", 1, false, {Topic::appraisal}},
};
// clang-format on

// Keywords by topic, tried in this order; the first topic with a word that starts with one of its
// keywords wins. Refund, cancelling and restoring come before subscribing, since questions about them
// mention the subscription too; a wrong result before identifying.
struct Keywords {
  Topic topic;
  std::vector<const char*> stems;
};

const Keywords kKeywords[] = {
    {Topic::refund, {"refund", "money back", "reimburs", "charged twice"}},
    {Topic::unsubscribe, {"unsubscrib", "cancel", "stop paying"}},
    {Topic::restore, {"restor", "new phone", "lost my purchase"}},
    {Topic::subscribe, {"subscri", "premium", "upgrad", "purchas", "free trial"}},
    {Topic::incorrectResult, {"wrong", "incorrect", "inaccurate", "misidentif", "not the right"}},
    {Topic::technicalIssues, {"crash", "bug", "freez", "error", "not working", "won't load", "doesn't load"}},
    {Topic::complain, {"complain", "terrible", "awful", "disappoint", "unacceptable", "rude"}},
    {Topic::appraisal, {"love the", "love this", "love it", "thank", "great app", "awesome", "five star", "5 star"}},
    {Topic::recommend, {"recommend", "suggest", "which plant", "best plant"}},
    {Topic::ability, {"can the app", "can it", "able to", "identif", "recogni", "does it support"}},
    {Topic::garden, {"water", "soil", "garden", "leaf", "leaves", "prun", "fertili", "repot", "sunlight", "pest"}},
};

bool isWordCharacter(char c) { return std::isalnum(static_cast<unsigned char>(c)) != 0 || c == '\''; }

// Whether a word (or run of words) of `text` starts with `stem`; `text` is in lower case.
bool startsAWord(std::string_view text, std::string_view stem) {
  for (std::size_t at = text.find(stem); at != std::string_view::npos; at = text.find(stem, at + 1)) {
    if (at == 0 || !isWordCharacter(text[at - 1])) return true;
  }
  return false;
}

Topic classify(std::string question) {
  std::transform(question.begin(), question.end(), question.begin(),
                 [](char c) { return static_cast<char>(std::tolower(static_cast<unsigned char>(c))); });
  for (const Keywords& keywords : kKeywords) {
    for (const char* stem : keywords.stems) {
      if (startsAWord(question, stem)) return keywords.topic;
    }
  }
  return Topic::other;
}

// The locale of the pages: the language's tag, with the country when it is a two-letter code ("fr-CA").
// An unknown or unreadable language reads as English; a country of any other shape is left out.
std::string locale(const Call& call) {
  static const char* const kLanguages[] = {"en", "zh-Hans", "zh-Hant", "ja", "ko", "fr", "de", "es",
                                           "it", "pt",      "ru",      "ar", "nl", "pl", "tr", "sv"};
  const std::string language = text(call.params, "language_code");
  std::int64_t number = -1;
  const auto [end, error] = std::from_chars(language.data(), language.data() + language.size(), number);
  const bool known = error == std::errc{} && end == language.data() + language.size() && number >= 0 &&
                     number < static_cast<std::int64_t>(std::size(kLanguages));
  std::string tag = known ? kLanguages[number] : "en";
  const std::string country = text(call.params, "country_code");
  if (country.size() == 2 && std::all_of(country.begin(), country.end(),
                                         [](char c) { return std::isalpha(static_cast<unsigned char>(c)) != 0; })) {
    tag += '-';
    for (char c : country) tag += static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
  }
  return tag;
}

JsonMap articlePage(const FaqArticle& article, const std::string& locale) {
  return contentStaticUrl("faq/" + locale + "/" + article.uid);
}

JsonMap faqArticle(const FaqArticle& article, const std::string& locale) {
  return {{"uid", article.uid},
          {"title", article.title},
          {"summary", article.summary},
          {"image_url", std::string(kImages) + article.uid + ".jpg"},
          {"type", article.type},
          {"feed_type", 1},
          {"cms_static_url", articlePage(article, locale)}};
}

// The catalogue by category, in catalogue order; with `popularOnly`, only the popular articles, and only
// the categories that have one.
JsonMap faqReply(const Call& call, bool popularOnly) {
  const std::string pages = locale(call);
  JsonList categories;
  for (const FaqCategory& category : kCategories) {
    JsonList articles;
    for (const FaqArticle& article : kArticles) {
      if (article.category == std::string_view(category.uid) && (article.popular || !popularOnly)) {
        articles.push_back(faqArticle(article, pages));
      }
    }
    if (articles.empty() && popularOnly) continue;
    categories.push_back(JsonMap{{"uid", category.uid},
                                 {"title", category.title},
                                 {"summary", category.summary},
                                 {"image_url", std::string(kImages) + "categories/" + category.uid + ".jpg"},
                                 {"cms_faq_article_list", std::move(articles)}});
  }
  return {{"cms_faq_category_list", std::move(categories)}};
}

// The articles about a topic, each as the question it answers and its page; none for `other`.
JsonMap autoReply(const Call& call) {
  const Topic topic = classify(text(call.params, "content"));
  const std::string pages = locale(call);
  JsonList articles;
  for (const FaqArticle& article : kArticles) {
    if (std::find(article.topics.begin(), article.topics.end(), topic) != article.topics.end()) {
      articles.push_back(JsonMap{{"question", article.title}, {"cms_static_url", articlePage(article, pages)}});
    }
  }
  return {{"classification", static_cast<std::int64_t>(topic)}, {"auto_reply_article", std::move(articles)}};
}

// A ticket as the caller sent it. The Dictionary face sends its integers as form text; they are kept as
// numbers, so that a ticket reads the same whichever face sent it. Lists and maps arrive parsed already.
JsonMap ticket(const Call& call) {
  JsonMap ticket = call.params;
  for (const char* key : {"support_type", "language_code"}) {
    JsonValue* value = ticket.if_contains(key);
    if (!value || !value->is_string()) continue;
    const std::string_view digits = value->get_string();
    std::int64_t number = 0;
    const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
    if (!digits.empty() && error == std::errc{} && end == digits.data() + digits.size()) *value = number;
  }
  return ticket;
}

}  // namespace

HandlerTable supportHandlers(Extras& extras) {
  // Tickets by account, oldest first, for the life of the service or of the account.
  auto tickets = std::make_shared<std::map<std::int64_t, JsonList>>();
  extras.routes[R"(tickets/(\d+))"] = [tickets](const std::vector<std::string>& captures) {
    // Digits too many for an id name no account: no tickets.
    std::int64_t id = 0;
    const std::string& digits = captures.at(0);
    const bool fits = std::from_chars(digits.data(), digits.data() + digits.size(), id).ec == std::errc{};
    const auto found = fits ? tickets->find(id) : tickets->end();
    return JsonMap{{"tickets", found == tickets->end() ? JsonList{} : found->second}};
  };
  extras.onAccountDeleted.push_back([tickets](std::int64_t userId) { tickets->erase(userId); });
  return {
      {support::kGetCustomerSupportAutoReply.path, [](Call& call) { return autoReply(call); }},
      {support::kGetFaqFromCms.path, [](Call& call) { return faqReply(call, false); }},
      {support::kGetPopularFaqFromCms.path, [](Call& call) { return faqReply(call, true); }},
      // Both Dictionary-face ticket messages and the Typed-face request arrive here.
      {support::kSendSupportTicket.path,
       [tickets](Call& call) {
         (*tickets)[*call.userId].push_back(ticket(call));
         return JsonMap{};
       }},
  };
}

}  // namespace qb::mock
