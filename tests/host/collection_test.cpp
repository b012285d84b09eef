// The collection pager against the mock service: page sizes, edits between pages, a saved cursor, a
// failing page, and a service that does not advance.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Collection.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <atomic>
#include <functional>
#include <set>

#include "host/MockSession.hpp"

namespace qb {
namespace {

// The real transport, with a hook that may answer a page request instead of the service.
class Interposer : public host::Transport {
 public:
  std::function<std::optional<host::HttpResponse>(int pageRequest)> hook;
  host::HttpResponse send(const host::HttpRequest& request) override {
    if (request.url.find("list_my_collections_page") != std::string::npos) {
      const int n = ++pageRequests;
      if (hook) {
        if (auto answer = hook(n)) return *answer;
      }
    }
    return real->send(request);
  }
  std::atomic<int> pageRequests{0};

 private:
  std::shared_ptr<host::Transport> real = host::makeCurlTransport();
};

struct Account : MockSession {
  std::shared_ptr<Interposer> transport;
  explicit Account(std::shared_ptr<Interposer> interposer = std::make_shared<Interposer>())
      : MockSession(interposer), transport(std::move(interposer)) {}

  std::vector<std::int64_t> all() {
    std::vector<std::int64_t> ids;
    for (const auto& item : client.send(ItemListMyCollectionsRequest{}).items) ids.push_back(item.itemId);
    return ids;
  }
};

std::vector<std::int64_t> ids(host::Collection& items, std::size_t limit = SIZE_MAX) {
  std::vector<std::int64_t> out;
  for (const SimpleItemModel& item : items) {
    out.push_back(item.itemId);
    if (out.size() == limit) break;
  }
  return out;
}

TEST(Collection, EveryPageSizeGivesTheWholeCollectionOnce) {
  Account account;
  const auto expected = account.all();
  ASSERT_GE(expected.size(), 6u);
  for (const std::int64_t size :
       {std::int64_t{1}, std::int64_t{5}, static_cast<std::int64_t>(expected.size()), std::int64_t{500}}) {
    SCOPED_TRACE(size);
    host::Collection items = account.client.collection({.pageSize = size});
    EXPECT_EQ(ids(items), expected);
    // A page as long as the page size asks for one more; a short one ends the range.
    const std::size_t n = expected.size(), s = static_cast<std::size_t>(size);
    EXPECT_EQ(items.pagesFetched(), n / s + 1);
    EXPECT_EQ(items.cursor(), expected.back());
  }
}

TEST(Collection, ASavedCursorResumesWithNothingRepeatedOrLost) {
  Account account;
  const auto expected = account.all();
  host::Collection first = account.client.collection({.pageSize = 4});
  auto seen = ids(first, 6);  // stops inside the second page
  ASSERT_EQ(first.cursor(), seen.back());
  host::Collection rest = account.client.collection({.pageSize = 4, .after = first.cursor()});
  for (auto id : ids(rest)) seen.push_back(id);
  EXPECT_EQ(seen, expected);
}

TEST(Collection, EditsBetweenPagesShowInTheLaterPages) {
  Account account;
  const auto before = account.all();
  host::Collection items = account.client.collection({.pageSize = 3});
  auto it = items.begin();
  std::vector<std::int64_t> seen{it->itemId};
  // One item already received and one still ahead are deleted while the first page is held.
  account.client.send(ItemBatchDeleteItemsRequest{.itemIds = {before[0], before[4]}});
  for (++it; it != items.end(); ++it) seen.push_back(it->itemId);
  std::vector<std::int64_t> expected = before;
  expected.erase(expected.begin() + 4);
  EXPECT_EQ(seen, expected);
}

TEST(Collection, AFailedPageIsThrownAndTheSameIncrementCanBeRetried) {
  Account account;
  const auto expected = account.all();
  account.transport->hook = [](int n) -> std::optional<host::HttpResponse> {
    if (n == 3) return host::HttpResponse{500, R"({"error": "boom", "message": "third page"})"};
    return std::nullopt;
  };
  host::Collection items = account.client.collection({.pageSize = 2});
  std::vector<std::int64_t> seen;
  auto it = items.begin();
  try {
    for (; it != items.end(); ++it) seen.push_back(it->itemId);
    FAIL() << "the third page did not fail";
  } catch (const host::HttpError& e) {
    EXPECT_EQ(e.status(), 500);
  }
  ASSERT_EQ(seen.size(), 4u);
  EXPECT_EQ(items.cursor(), seen.back());
  for (++it; it != items.end(); ++it) seen.push_back(it->itemId);
  EXPECT_EQ(seen, expected);
}

TEST(Collection, AServiceThatDoesNotAdvanceIsAnError) {
  Account account;
  const auto expected = account.all();
  // Every page after the first repeats the first.
  std::string firstPage;
  account.transport->hook = [&](int n) -> std::optional<host::HttpResponse> {
    if (n == 1) return std::nullopt;
    return host::HttpResponse{200, firstPage};
  };
  host::Collection items = account.client.collection({.pageSize = 3});
  JsonList page;
  for (std::size_t i = 0; i < 3; ++i)
    page.push_back(
        JsonMap{{"item_id", expected[i]}, {"item_image", JsonMap{}}, {"shoot_at", 1700000000}, {"name", "n"}});
  firstPage = toJson(JsonMap{{"items", page}});
  EXPECT_THROW(ids(items), host::PagingError);
}

TEST(Collection, AnEmptyCollectionIsAnEmptyRange) {
  Account account;
  account.client.send(ItemBatchDeleteItemsRequest{.itemIds = account.all()});
  host::Collection items = account.client.collection({.pageSize = 10});
  EXPECT_TRUE(ids(items).empty());
  EXPECT_EQ(items.cursor(), std::nullopt);
  EXPECT_THROW(account.client.collection({.pageSize = 0}), qb::Error);
}

}  // namespace
}  // namespace qb
