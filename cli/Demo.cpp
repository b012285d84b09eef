#include "cli/Demo.hpp"

#include <QBComponentAPI/host/Collection.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>
#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>
#include <QBComponentAPI/user/dict/QBAPIUser.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserUpdateMessage.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetUserRequest.hpp>
#include <cstdio>
#include <iostream>
#include <string>
#include <string_view>
#include <vector>

namespace qb::cli {

void openGuestSession(host::Client& client) {
  auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
  client.send(*init);
  client.setAccessToken(std::string(init->accessToken()->as_string()));
}

void printCollection(host::Client& client, std::int64_t pageSize, std::optional<std::int64_t> after) {
  host::Collection items = client.collection({.pageSize = pageSize, .after = after});
  try {
    for (const SimpleItemModel& item : items) std::cout << JSONEncoder().encode(item) << "\n";
  } catch (...) {
    // What was printed stays valid: say where to resume before reporting the failure.
    if (items.cursor()) std::cerr << "stopped; resume with --after " << *items.cursor() << "\n";
    throw;
  }
}

namespace {

void step(int n, std::string_view face, std::string_view what) {
  std::cout << "\n[" << n << "] " << what << "  (" << face << " face)\n";
}

}  // namespace

void demo(qb::host::Client& client) {
  step(1, "Dictionary", "initialise: a guest account and its token");
  auto init = qb::QBUserInitialiseMessage::initWithData(nullptr, nullptr, qb::rawValue(qb::LanguageCode::en),
                                                        qb::JsonValue("US"));
  std::cout << "  params " << qb::toJson(init->getParams()) << "\n";
  client.send(*init);
  client.setAccessToken(std::string(init->accessToken()->as_string()));
  std::cout << "  user_id " << *init->user()->userId() << " (above 2^53, exact), guest " << *init->user()->guestUser()
            << ", token received\n";

  step(2, "Typed", "get_config");
  const auto config = client.send(qb::UserGetConfigRequest{.languageCode = qb::LanguageCode::en, .countryCode = "US"});
  std::cout << "  " << qb::JSONEncoder().encode(config.config) << "\n";

  step(3, "Dictionary", "update: nickname, gender and an avatar as a multipart upload");
  const std::string png = "\x89PNG\r\n\x1a\n qbapi demo avatar";
  std::vector<std::byte> avatar;
  for (char c : png) avatar.push_back(static_cast<std::byte>(c));
  auto update = qb::QBUserUpdateMessage::initWithData(qb::JsonValue("Fern"), avatar, qb::rawValue(qb::Gender::female));
  std::cout << "  params " << qb::toJson(update->getParams()) << ", " << update->mimeBodies().size()
            << " multipart body of " << avatar.size() << " bytes\n";
  client.send(*update);
  std::cout << "  avatar_url " << std::string_view(update->avatarUrl()->as_string()) << "\n";

  step(4, "Typed", "get: what the service stored");
  const auto user = client.send(qb::UserGetUserRequest{});
  std::cout << "  nickname " << user.user.nickname.value_or("?") << ", gender "
            << qb::caseName(user.user.gender.value_or(qb::Gender::unknown)) << ", avatar "
            << user.user.avatarUrl.value_or("?") << "\n";
  const auto stored =
      qb::host::makeCurlTransport()->send(qb::host::HttpRequest{.method = "GET", .url = *user.user.avatarUrl});
  std::cout << "  the avatar served back is " << (stored.body == png ? "identical" : "DIFFERENT") << "\n";

  step(5, "Dictionary", "get_faq");
  auto faq =
      qb::QBUserGetFaqMessage::initWithData(qb::rawValue(qb::LanguageCode::en), qb::rawValue(qb::DeviceType::ios));
  client.send(*faq);
  const auto faqs = faq->faqs();
  for (const auto& entry : *faqs) std::cout << "  - " << std::string_view(entry->title()->as_string()) << "\n";

  step(6, "Typed", "the whole collection through the pager, 5 items a page");
  qb::host::Collection items = client.collection({.pageSize = 5});
  std::size_t count = 0;
  for (const qb::SimpleItemModel& item : items) {
    if (count++ < 3) std::cout << "  - " << item.itemId << " " << item.name << "\n";
  }
  std::cout << "  " << count << " items in " << items.pagesFetched() << " pages; resume after "
            << items.cursor().value_or(0) << "\n";

  step(7, "Typed", "delete_account");
  client.send(qb::UserDeleteAccountRequest{});
  std::cout << "  deleted\n";
  try {
    client.send(qb::UserGetUserRequest{});
  } catch (const qb::host::HttpError& e) {
    std::cout << "  get afterwards answers HTTP " << e.status() << ": the account is gone\n";
  }
}

}  // namespace qb::cli
