// The item collection end to end: every item endpoint through each face it has, against the mock
// service's per-account collection, and every edit read back through get_item_detail.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <functional>
#include <map>
#include <set>

#include "cli/Registry.hpp"
#include "host/MockSession.hpp"

namespace qb {
namespace {

struct Session : MockSession {
  std::vector<std::int64_t> ids;  // the seeded collection, newest first
  Session() {
    for (const auto& item : client.send(ItemListMyCollectionsRequest{}).items) ids.push_back(item.itemId);
  }
  ItemDetailModel detail(std::int64_t id) {
    return client.send(ItemGetItemDetailRequest{.itemId = id, .languageCode = LanguageCode::en, .countryCode = "US"})
        .item;
  }
};

TEST(ItemSession, EveryItemEndpointAnswersInEveryFaceItHas) {
  Session session;
  ASSERT_GE(session.ids.size(), 6u);
  const std::string kept = std::to_string(session.ids[0]);
  // The deleting endpoints take items of their own, one per face.
  std::vector<std::string> doomed;
  for (std::size_t i = 1; i < 6; ++i) doomed.push_back(std::to_string(session.ids[i]));
  const std::map<std::string_view, std::function<std::string()>> arguments{
      {"v3/item/get_item_detail",
       [&] {
         return R"({"item_id": )" + kept + R"(, "language_code": 0, "country_code": "US", "sign_image_url": true})";
       }},
      {"v3/item/list_my_collections", [] { return R"({"sign_image_url": true})"; }},
      {"v3/item/list_my_collections_page", [&] { return R"({"page_size": 3, "last_item_id": )" + kept + "}"; }},
      {"v3/item/delete_item",
       [&] {
         const std::string id = doomed.back();
         doomed.pop_back();
         return R"({"item_id": )" + id + "}";
       }},
      {"v3/item/batch_delete_items",
       [&] {
         std::string ids = doomed.back() + ", " + doomed[doomed.size() - 2];
         doomed.resize(doomed.size() - 2);
         return R"({"item_ids": [)" + ids + "]}";
       }},
      {"v3/item/change_item_cms_name",
       [&] {
         return R"({"item_id": )" + kept + R"(, "cms_name_uid": "ficus-lyrata", "cms_name_name": "Fiddle-leaf fig"})";
       }},
      {"v3/item/update_item_custom_name",
       [&] { return R"({"item_id": )" + kept + R"(, "uid": "u-1", "name": "Figgy"})"; }},
      {"v3/item/update_item_custom_note", [&] { return R"({"item_id": )" + kept + R"(, "note": "Turn weekly"})"; }},
      {"v3/item/update_item_location", [&] { return R"({"item_id": )" + kept + R"(, "lng": 2.35, "lat": 48.85})"; }},
      {"v3/item/update_item_original_image_url",
       [&] { return R"({"item_id": )" + kept + R"(, "original_image_url": "https://u.example/o.heic"})"; }},
      {"v3/item/update_item_original_det_image_url",
       [&] { return R"({"item_id": )" + kept + R"(, "original_det_image_url": "https://u.example/d.jpg"})"; }},
      {"v3/item/item_delete_candidate_user", [] { return "{}"; }},
      {"v3/item/item_delete_notified", [] { return "{}"; }},
      {"v3/item/check_user_buy_cloud_storage", [] { return "{}"; }},
  };
  std::set<std::string> called;
  forEachType(item::Endpoints{}, [&]<class A>() {
    const std::string_view path = A::endpoint.path;
    SCOPED_TRACE(std::string(path));
    const auto args = arguments.find(path);
    ASSERT_NE(args, arguments.end()) << "no arguments for this endpoint";
    const cli::Entry* entry = cli::findEntry(path);
    ASSERT_NE(entry, nullptr);
    for (const auto* send : {&entry->dictionary, &entry->typed}) {
      if (!*send) continue;
      const cli::Arguments given{.values = parseJsonMap(args->second()), .files = {}};
      (*send)(session.client, given);
      called.insert(std::string(path) + (send == &entry->dictionary ? " dictionary" : " typed"));
    }
  });
  // Nine endpoints have both faces, four the Typed face only, one the Dictionary face only.
  EXPECT_EQ(called.size(), 9u * 2 + 4 + 1);
  EXPECT_EQ(session.client.send(ItemListMyCollectionsRequest{}).items.size(), session.ids.size() - 4);
}

TEST(ItemSession, EveryEditShowsInTheItemsDetail) {
  Session session;
  const std::int64_t id = session.ids[1];
  struct Case {
    const char* name;
    std::function<void(host::Client&)> edit;
    std::function<void(const ItemDetailModel&)> check;
  };
  const Case cases[] = {
      {"custom name",
       [&](host::Client& c) { c.send(ItemUpdateItemCustomNameRequest{.itemId = id, .uid = "u", .name = "Monty"}); },
       [](const ItemDetailModel& d) { EXPECT_EQ(d.customName, "Monty"); }},
      {"note",
       [&](host::Client& c) {
         auto message = QBItemUpdateItemCustomNoteMessage::initWithData(JsonValue(id), JsonValue("Mist daily"));
         c.send(*message);
         EXPECT_EQ(message->notesWithSignedUrl(), JsonValue("Mist daily"));
       },
       [](const ItemDetailModel& d) { EXPECT_EQ(d.customNote, "Mist daily"); }},
      {"location at 0, 0",
       [&](host::Client& c) { c.send(ItemUpdateItemLocationRequest{.itemId = id, .lng = 0, .lat = 0}); },
       [](const ItemDetailModel& d) {
         EXPECT_EQ(d.lng, 0.0);
         EXPECT_EQ(d.lat, 0.0);
       }},
      {"content name",
       [&](host::Client& c) {
         c.send(ItemChangeItemCmsNameRequest{
             .itemId = id, .cmsNameUid = "calathea-orbifolia", .cmsNameName = "Prayer plant"});
       },
       [](const ItemDetailModel& d) {
         EXPECT_EQ(d.cmsNameUid, "calathea-orbifolia");
         EXPECT_EQ(d.name, "Prayer plant");
         ASSERT_FALSE(d.cmsNames.empty());
         EXPECT_EQ(d.cmsNames.front().uid, "calathea-orbifolia");
         EXPECT_EQ(d.cmsNames.size(), d.probabilities.size());
       }},
      {"original image",
       [&](host::Client& c) {
         c.send(ItemUpdateItemOriginalImageUrlRequest{.itemId = id, .originalImageUrl = "https://u.example/o.heic"});
       },
       [](const ItemDetailModel& d) { EXPECT_EQ(d.itemImage.originalUrl, "https://u.example/o.heic"); }},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    c.edit(session.client);
    c.check(session.detail(id));
  }
  // The Dictionary face reads the same item; its detailed item never carries disease_uid.
  auto message = QBItemGetItemDetailMessage::initWithData(JsonValue(id), 0, JsonValue("US"), nullptr);
  session.client.send(*message);
  EXPECT_EQ(message->item()->customName(), JsonValue("Monty"));
  EXPECT_FALSE(message->item()->toDictionary().contains("disease_uid"));
}

TEST(ItemSession, ItemsOutsideTheCollectionAreNotFound) {
  Session mine;
  Session theirs;
  const std::int64_t deleted = mine.ids[0];
  mine.client.send(ItemDeleteItemRequest{.itemId = deleted});
  for (const std::int64_t id : {deleted, theirs.ids[0]}) {
    SCOPED_TRACE(id);
    EXPECT_THROW(mine.detail(id), host::HttpError);
    EXPECT_THROW(mine.client.send(ItemUpdateItemCustomNameRequest{.itemId = id, .uid = "u", .name = "x"}),
                 host::HttpError);
  }
}

}  // namespace
}  // namespace qb
