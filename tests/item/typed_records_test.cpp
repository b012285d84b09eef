// Every Typed-face item record and response: round trips, required and optional members, the exact ids
// and dates, and what this face reads differently from the other one.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <functional>

#include "item/Fixtures.hpp"
#include "typed_helpers.hpp"

namespace qb {
namespace {

using namespace fixtures::item;

const std::vector<const char*> kItemRequired{"item_id", "item_image", "shoot_at", "name"};
const std::vector<const char*> kDetailRequired{"item_id", "item_image", "shoot_at",
                                               "name",    "cms_names",  "probabilities"};

const std::vector<RecordRow>& rows() {
  static const std::vector<RecordRow> table{
      recordRow<ItemImageModel>("ItemImage", kItemImage, {}),
      recordRow<SimpleItemModel>("SimpleItem", kSimpleItem, kItemRequired),
      recordRow<ItemDetailModel>("ItemDetail", kItemDetail, kDetailRequired),
      recordRow<ItemGetItemDetailResponse>("GetItemDetailResponse", jsonObject("item", kItemDetail), {"item"}),
      recordRow<ItemListMyCollectionsResponse>("ListMyCollectionsResponse",
                                               jsonObject("items", "[" + kSimpleItem + "]"), {"items"}),
      recordRow<ItemListMyCollectionsPageResponse>("ListMyCollectionsPageResponse",
                                                   jsonObject("items", "[" + kSimpleItem + ", " + kSimpleItem + "]"),
                                                   {"items"}),
      recordRow<ItemUpdateItemCustomNoteResponse>("UpdateItemCustomNoteResponse",
                                                  R"({"notes_with_signed_url": "See https://s.example/1?sig=x"})",
                                                  {"notes_with_signed_url"}),
      recordRow<ItemCheckUserBuyCloudStorageResponse>("CheckUserBuyCloudStorageResponse",
                                                      R"({"has_buy_cloud_storage": false})", {"has_buy_cloud_storage"}),
  };
  return table;
}

TEST(ItemTypedRecords, FullRepliesRoundTrip) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    row.roundTrip(row.full);
  }
}

TEST(ItemTypedRecords, ItemsEncodeEveryKeyInReplyOrderWithItsValue) {
  for (const auto& row : rows()) {
    if (std::string_view(row.name).ends_with("Response")) continue;
    SCOPED_TRACE(row.name);
    const JsonValue expected = parseJson(row.full);
    const JsonValue encoded = parseJson(row.reencoded(row.full));
    EXPECT_EQ(keysOf(encoded), keysOf(expected));
    for (const auto& member : expected.as_object()) {
      // The content names are the content records' own business.
      if (member.key() == "cms_names") continue;
      EXPECT_EQ(encoded.at(member.key()), member.value()) << member.key();
    }
  }
}

TEST(ItemTypedRecords, RequiredMembersFailWhenMissingOrNullOptionalOnesMayBeAbsent) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    expectRequiredKeysFail(row.name, full, row.required, row.roundTrip);
    JsonMap minimal;
    for (const char* key : row.required) minimal[key] = full.at(key);
    SCOPED_TRACE(row.name);
    row.roundTrip(toJson(minimal));
    EXPECT_EQ(keysOf(parseJson(row.reencoded(toJson(minimal)))), keysOf(minimal)) << "absent optionals are left out";
    for (const auto& member : full) {
      if (!minimal.contains(member.key())) minimal[member.key()] = nullptr;  // null optionals are absent
    }
    row.roundTrip(toJson(minimal));
  }
}

TEST(ItemTypedRecords, IdsDatesAndCoordinatesAreExact) {
  const auto detail = JSONDecoder().decode<ItemDetailModel>(kItemDetail);
  EXPECT_EQ(detail.itemId, 9007199254740995);
  EXPECT_EQ(detail.shootAt.time_since_epoch().count(), 1700000000250);
  EXPECT_EQ(detail.lng, 139.69170000000003);
  EXPECT_EQ(detail.lat, -35.6895);
  ASSERT_EQ(detail.cmsNames.size(), 1u);
  EXPECT_EQ(detail.cmsNames[0].uid, "cn-1");
  EXPECT_EQ(detail.probabilities, std::vector<double>{0.8700000000000001});
  EXPECT_NE(JSONEncoder().encode(detail).find(R"("item_id":9007199254740995)"), std::string::npos);

  // 0 degrees is present; only a missing or null coordinate is absent.
  JsonMap map = parseJsonMap(kSimpleItem);
  map["lng"] = 0;
  map["lat"] = nullptr;
  const auto simple = JSONDecoder().decode<SimpleItemModel>(toJson(map));
  EXPECT_EQ(simple.lng, 0.0);
  EXPECT_FALSE(simple.lat);
  const JsonMap written = parseJsonMap(JSONEncoder().encode(simple));
  EXPECT_EQ(written.at("lng").to_number<double>(), 0.0);
  EXPECT_FALSE(written.contains("lat"));
}

TEST(ItemTypedRecords, WhatThisFaceReadsDifferently) {
  using Kind = DecodingError::Kind;
  // The detailed item keeps its disease id here.
  EXPECT_EQ(JSONDecoder().decode<ItemDetailModel>(kItemDetail).diseaseUid, "d-1");
  EXPECT_NE(JSONEncoder().encode(JSONDecoder().decode<ItemDetailModel>(kItemDetail)).find(R"("disease_uid":"d-1")"),
            std::string::npos);

  struct Case {
    const char* key;
    JsonValue value;
    Kind kind;
  } const cases[] = {
      {"item_id", "9007199254740993", Kind::typeMismatch},
      {"item_id", 1.5, Kind::typeMismatch},
      {"shoot_at", "yesterday", Kind::typeMismatch},
      {"lat", "north", Kind::typeMismatch},
      {"probabilities", JsonList{0.5, "x"}, Kind::typeMismatch},
  };
  for (const auto& c : cases) {
    JsonMap map = parseJsonMap(kItemDetail);
    map[c.key] = c.value;
    std::string path;
    EXPECT_EQ(decodingFailure([&] { JSONDecoder().decode<ItemDetailModel>(toJson(map)); }, &path), c.kind) << c.key;
    EXPECT_TRUE(path.starts_with(c.key)) << path;
  }

  // An empty list of names is a result; a failing content name fails the whole reply, with its path.
  JsonMap map = parseJsonMap(kItemDetail);
  map["cms_names"] = JsonList{};
  EXPECT_TRUE(JSONDecoder().decode<ItemDetailModel>(toJson(map)).cmsNames.empty());
  JsonValue reply = parseJson(jsonObject("item", kItemDetail));
  reply.at_pointer("/item/cms_names/0").as_object().erase("uid");
  std::string path;
  EXPECT_EQ(decodingFailure([&] { ItemGetItemDetailResponse::init(toJson(reply), JSONDecoder()); }, &path),
            Kind::keyNotFound);
  EXPECT_EQ(path, "item.cms_names[0].uid");
  EXPECT_TRUE(JSONDecoder().decode<ItemImageModel>("{}") == ItemImageModel{});
}

TEST(ItemTypedRecords, ResponsesWithoutFieldsAcceptAnyObject) {
  const std::string reply = R"({"item": null, "ok": [1]})";
  EXPECT_NO_THROW(ItemDeleteItemResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemBatchDeleteItemsResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemChangeItemCmsNameResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemUpdateItemCustomNameResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemUpdateItemLocationResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemUpdateItemOriginalImageUrlResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemUpdateItemOriginalDetImageUrlResponse::init(reply, JSONDecoder()));
  EXPECT_NO_THROW(ItemItemDeleteNotifiedResponse::init(std::string("{}"), JSONDecoder()));
  EXPECT_THROW(ItemDeleteItemResponse::init(std::string("[]"), JSONDecoder()), DecodingError);
}

}  // namespace
}  // namespace qb
