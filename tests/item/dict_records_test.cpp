// Every Dictionary-face item model: round trip, the required checks in declared order, the lists of a
// detailed item, and the disease id that only the simple item keeps.
#include <gtest/gtest.h>

#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <functional>
#include <string>
#include <vector>

#include "dict_helpers.hpp"
#include "item/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures::item;

struct ModelRow {
  const char* name;
  Reader read;
  const std::string& full;
  // Required keys in check order, each with the reason its absence raises.
  std::vector<std::pair<const char*, const char*>> required;
};

// clang-format off
const std::vector<ModelRow>& rows() {
  static const std::vector<ModelRow> table{
      {"ItemImage", reader<QBAPIItemImage>(), kItemImage, {}},
      {"SimpleItem", reader<QBAPISimpleItem>(), kSimpleItem,
       {{"item_id", "itemId is missing in model SimpleItem"},
        {"item_image", "itemImage is missing in model SimpleItem"},
        {"shoot_at", "shootAt is missing in model SimpleItem"},
        {"name", "name is missing in model SimpleItem"}}},
      {"ItemDetail", reader<QBAPIItemDetail>(), kItemDetail,
       {{"item_id", "itemId is missing in model ItemDetail"},
        {"item_image", "itemImage is missing in model ItemDetail"},
        {"shoot_at", "shootAt is missing in model ItemDetail"},
        {"name", "name is missing in model ItemDetail"},
        {"cms_names", "cmsNames is missing in model ItemDetail"},
        {"probabilities", "probabilities is missing in model ItemDetail"}}},
  };
  return table;
}
// clang-format on

// What this face writes back of a full item detail: no disease id, and no tags in the simple content
// names among the children of its content names (the content name model does not keep them).
JsonValue detailAsWritten() {
  JsonMap written;  // not erase(), which moves the last member into the gap
  for (auto& member : parseJsonMap(kItemDetail)) {
    if (member.key() != "disease_uid") written.emplace(member.key(), member.value());
  }
  for (auto& name : written.at("cms_names").as_array()) {
    for (auto& child : name.at("children").as_array()) child.as_object().erase("cms_tags");  // the last key
  }
  return written;
}

TEST(ItemDictModels, FullRepliesRoundTripInDeclaredOrder) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    const JsonValue expected = std::string_view(row.name) == "ItemDetail" ? detailAsWritten() : parseJson(row.full);
    const auto model = row.read(parseJsonMap(row.full));
    EXPECT_EQ(model->modelName(), row.name);
    // Compared as text: the keys come back in declared order and the ids above 2^53 unrounded.
    EXPECT_EQ(toJson(model->toDictionary()), toJson(expected));
    EXPECT_EQ(parseJson(model->toJsonString().value_or("null")), expected);
  }
}

TEST(ItemDictModels, EachMissingOrNullRequiredFieldRaisesItsReason) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    expectRequiredKeysRaise(row.read, row.full, row.required);
  }
}

TEST(ItemDictModels, OnlyRequiredKeysGiveThoseKeysBack) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    const JsonMap full = parseJsonMap(row.full);
    JsonMap minimal;
    std::vector<std::string> expected;
    for (const auto& [key, reason] : row.required) {
      minimal[key] = full.at(key);
      expected.emplace_back(key);
    }
    std::vector<std::string> written;
    for (const auto& member : row.read(minimal)->toDictionary()) written.emplace_back(member.key());
    EXPECT_EQ(written, expected);
  }
}

TEST(ItemDictModels, OnlyTheSimpleItemKeepsTheDiseaseId) {
  const JsonMap map = parseJsonMap(kItemDetail);
  ASSERT_TRUE(map.contains("disease_uid"));
  EXPECT_FALSE(QBAPIItemDetail::initWithJsonObject(map)->toDictionary().contains("disease_uid"));
  const auto simple = QBAPISimpleItem::initWithJsonObject(map);
  EXPECT_EQ(simple->diseaseUid(), JsonValue("d-1"));
  EXPECT_EQ(simple->toDictionary().at("disease_uid"), JsonValue("d-1"));
}

TEST(ItemDictModels, ZeroCoordinatesArePresent) {
  JsonMap map = parseJsonMap(kItemDetail);
  map["lng"] = 0;
  map["lat"] = 0.0;
  const auto detail = QBAPIItemDetail::initWithJsonObject(map);
  EXPECT_EQ(detail->lng(), JsonValue(0));
  EXPECT_EQ(detail->lat(), JsonValue(0.0));
  const auto simple = QBAPISimpleItem::initWithJsonObject(map);
  EXPECT_EQ(simple->toDictionary().at("lng"), JsonValue(0));
  EXPECT_EQ(simple->toDictionary().at("lat"), JsonValue(0.0));
}

TEST(ItemDictModels, DetailListsAreReadElementByElement) {
  JsonMap map = parseJsonMap(kItemDetail);
  map["cms_names"] = JsonList{};
  map["probabilities"] = JsonList{};
  const auto empty = QBAPIItemDetail::initWithJsonObject(map);
  ASSERT_TRUE(empty->cmsNames());
  EXPECT_TRUE(empty->cmsNames()->empty()) << "an empty list is present";
  EXPECT_EQ(toJson(empty->toDictionary().at("cms_names")), "[]");

  map = parseJsonMap(kItemDetail);
  map["cms_names"] = JsonList{parseJson(fixtures::cms::kCmsName), parseJson(fixtures::cms::kCmsName)};
  map["probabilities"] = parseJson("[0.5, 1, \"x\"]");
  const auto two = QBAPIItemDetail::initWithJsonObject(map);
  ASSERT_EQ(two->cmsNames()->size(), 2u);
  EXPECT_EQ((*two->cmsNames())[1]->uid(), JsonValue("cn-1"));
  EXPECT_EQ(JsonValue(*two->probabilities()), parseJson("[0.5, 1, \"x\"]")) << "scores are kept as they came";

  // A content name that fails its own check fails the item with the content name's reason.
  JsonValue broken = parseJson(kItemDetail);
  broken.at("cms_names").as_array()[0].as_object().erase("taxonomies");
  EXPECT_EQ(reasonOf([&] { QBAPIItemDetail::initWithJsonObject(broken.as_object()); }),
            "taxonomies is missing in model CmsName");
  broken = parseJson(kItemDetail);
  broken.at("cms_names").as_array()[0] = nullptr;
  EXPECT_THROW(QBAPIItemDetail::initWithJsonObject(broken.as_object()), JsonTypeError);
}

TEST(ItemDictModels, AnEmptyImageMapIsAnImageWithNothingSet) {
  const auto image = QBAPIItemImage::initWithJsonObject(JsonMap{});
  EXPECT_FALSE(image->iconUrl() || image->thumbnailUrl() || image->imageUrl() || image->originalUrl() ||
               image->signatureImageUrl());
  EXPECT_TRUE(image->toDictionary().empty());

  JsonMap map = parseJsonMap(kSimpleItem);
  map["item_image"] = JsonMap{};
  EXPECT_TRUE(QBAPISimpleItem::initWithJsonObject(map)->itemImage()) << "and satisfies a required image";
}

TEST(ItemDictModels, PlainFieldsAreKeptWhateverTheyHold) {
  JsonMap map = parseJsonMap(kSimpleItem);
  map["item_id"] = "9007199254740993";
  map["shoot_at"] = 1700000000123;
  map["properties"] = parseJson(R"({"pot": "clay"})");
  const JsonMap written = QBAPISimpleItem::initWithJsonObject(map)->toDictionary();
  EXPECT_EQ(written.at("item_id"), JsonValue("9007199254740993"));
  EXPECT_EQ(written.at("shoot_at"), JsonValue(1700000000123));
  EXPECT_EQ(written.at("properties"), parseJson(R"({"pot": "clay"})"));
}

}  // namespace
}  // namespace qb
