// Every Dictionary-face item message: the parameters it builds, each missing required parameter, and
// the reply key it reads.
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

JsonValue text(const char* s) { return JsonValue(s); }
const JsonValue kId(std::int64_t{9007199254740993});

using Detail = QBItemGetItemDetailMessage;
using List = QBItemListMyCollectionsMessage;
using Delete = QBItemDeleteItemMessage;
using ChangeName = QBItemChangeItemCmsNameMessage;
using CustomName = QBItemUpdateItemCustomNameMessage;
using CustomNote = QBItemUpdateItemCustomNoteMessage;
using Location = QBItemUpdateItemLocationMessage;
using OriginalImage = QBItemUpdateItemOriginalImageUrlMessage;

// clang-format off
const std::vector<DictMessageRow>& rows() {
  static const std::vector<DictMessageRow> table{
      {"GetItemDetail", [] { return Detail::initWithData(kId, 2, text("US"), JsonValue(1)); },
       R"({"item_id":9007199254740993,"language_code":2,"country_code":"US","sign_image_url":1})",
       {{unset(&Detail::setItemId), "itemId is missing in model GetItemDetail"},
        {unset(&Detail::setCountryCode), "countryCode is missing in model GetItemDetail"}},
       R"({"item": )" + kItemDetail + "}", "item", hasResult<Detail>(&Detail::item)},
      {"ListMyCollections", [] { return List::initWithData(JsonValue(true), JsonValue(0)); },
       R"({"return_first_item_in_batch":true,"sign_image_url":0})", {},
       R"({"items": [)" + kSimpleItem + "]}", "items", hasResult<List>(&List::items)},
      {"DeleteItem", [] { return Delete::initWithData(kId); },
       R"({"item_id":9007199254740993})",
       {{unset(&Delete::setItemId), "itemId is missing in model DeleteItem"}}, "{}", nullptr, nullptr},
      {"ChangeItemCmsName", [] { return ChangeName::initWithData(kId, text("cn-2"), text("Pothos")); },
       R"({"item_id":9007199254740993,"cms_name_uid":"cn-2","cms_name_name":"Pothos"})",
       {{unset(&ChangeName::setItemId), "itemId is missing in model ChangeItemCmsName"},
        {unset(&ChangeName::setCmsNameUid), "cmsNameUid is missing in model ChangeItemCmsName"},
        {unset(&ChangeName::setCmsNameName), "cmsNameName is missing in model ChangeItemCmsName"}},
       "{}", nullptr, nullptr},
      {"UpdateItemCustomName", [] { return CustomName::initWithData(kId, text("u-1"), text("Monty")); },
       R"({"item_id":9007199254740993,"uid":"u-1","name":"Monty"})",
       {{unset(&CustomName::setItemId), "itemId is missing in model UpdateItemCustomName"},
        {unset(&CustomName::setUid), "uid is missing in model UpdateItemCustomName"},
        {unset(&CustomName::setName), "name is missing in model UpdateItemCustomName"}},
       "{}", nullptr, nullptr},
      {"UpdateItemCustomNote", [] { return CustomNote::initWithData(kId, text("Water weekly")); },
       R"({"item_id":9007199254740993,"note":"Water weekly"})",
       {{unset(&CustomNote::setItemId), "itemId is missing in model UpdateItemCustomNote"},
        {unset(&CustomNote::setNote), "note is missing in model UpdateItemCustomNote"}},
       R"({"notes_with_signed_url": "Water weekly"})", "notes_with_signed_url",
       hasResult<CustomNote>(&CustomNote::notesWithSignedUrl)},
      // 0 degrees is a place like any other.
      {"UpdateItemLocation", [] { return Location::initWithData(kId, JsonValue(0), JsonValue(-35.6895)); },
       R"({"item_id":9007199254740993,"lng":0,"lat":-35.6895})",
       {{unset(&Location::setItemId), "itemId is missing in model UpdateItemLocation"},
        {unset(&Location::setLng), "lng is missing in model UpdateItemLocation"},
        {unset(&Location::setLat), "lat is missing in model UpdateItemLocation"}},
       "{}", nullptr, nullptr},
      {"UpdateItemOriginalImageUrl",
       [] {
         return OriginalImage::initWithData(kId, text("https://u.example/o.heic"), text("da39a3ee"), JsonValue(4032),
                                            JsonValue(3024), JsonValue(std::int64_t{5368709120}), text("heic"));
       },
       R"({"item_id":9007199254740993,"original_image_url":"https://u.example/o.heic",)"
       R"("original_image_sha1":"da39a3ee","original_image_height":4032,"original_image_width":3024,)"
       R"("original_image_file_size":5368709120,"original_image_file_format":"heic"})",
       {{unset(&OriginalImage::setItemId), "itemId is missing in model UpdateItemOriginalImageUrl"},
        {unset(&OriginalImage::setOriginalImageUrl), "originalImageUrl is missing in model UpdateItemOriginalImageUrl"}},
       "{}", nullptr, nullptr},
      {"ItemDeleteCandidateUser", [] { return QBItemItemDeleteCandidateUserMessage::initWithData(); },
       "{}", {}, "{}", nullptr, nullptr},
      {"ItemDeleteNotified", [] { return QBItemItemDeleteNotifiedMessage::initWithData(); },
       "{}", {}, "{}", nullptr, nullptr},
  };
  return table;
}
// clang-format on

TEST(ItemDictMessages, BuildTheirParametersCheckTheRequiredOnesAndReadTheirResultKey) {
  EXPECT_EQ(rows().size(), 10u);
  expectMessageRows(rows());
}

TEST(ItemDictMessages, OptionalParametersAreLeftOutAndTheLanguageCodeAlwaysSent) {
  EXPECT_EQ(toJson(List::initWithData(std::nullopt, std::nullopt)->getParams()), "{}");
  EXPECT_EQ(toJson(List::initWithData(std::nullopt, JsonValue(false))->getParams()), R"({"sign_image_url":false})");
  EXPECT_EQ(toJson(Detail::initWithData(JsonValue(7), 0, text("US"), std::nullopt)->getParams()),
            R"({"item_id":7,"language_code":0,"country_code":"US"})");
  EXPECT_EQ(toJson(OriginalImage::initWithData(JsonValue(7), text("https://u.example/o.jpg"), std::nullopt,
                                               std::nullopt, std::nullopt, std::nullopt, std::nullopt)
                       ->getParams()),
            R"({"item_id":7,"original_image_url":"https://u.example/o.jpg"})");
}

TEST(ItemDictMessages, ResultsHoldTheReplyRecords) {
  auto detail = Detail::initWithData(kId, 0, text("US"), std::nullopt);
  detail->parseResponse(parseJsonMap(R"({"item": )" + kItemDetail + "}"));
  ASSERT_TRUE(detail->item());
  EXPECT_EQ(detail->item()->itemId()->as_int64(), 9007199254740995);
  detail->parseResponse(parseJsonMap(R"({"item": null})"));
  EXPECT_TRUE(detail->item()) << "a null record leaves the result as it was";
  EXPECT_EQ(reasonOf([&] { detail->parseResponse(parseJsonMap(R"({"item": {"item_id": 1}})")); }),
            "itemImage is missing in model ItemDetail");

  auto note = CustomNote::initWithData(kId, text("n"));
  note->parseResponse(parseJsonMap(R"({"notes_with_signed_url": "n https://s.example/1?sig=x"})"));
  EXPECT_EQ(note->notesWithSignedUrl(), JsonValue("n https://s.example/1?sig=x"));
  note->parseResponse(parseJsonMap(R"({"notes_with_signed_url": null})"));
  EXPECT_FALSE(note->notesWithSignedUrl()) << "null clears the text";
}

TEST(ItemDictMessages, CollectionListsAreReadElementByElement) {
  auto list = List::initWithData(std::nullopt, std::nullopt);
  list->parseResponse(parseJsonMap(R"({"items": null})"));
  EXPECT_FALSE(list->items()) << "null leaves no list";
  list->parseResponse(parseJsonMap(R"({"items": []})"));
  ASSERT_TRUE(list->items());
  EXPECT_TRUE(list->items()->empty()) << "an empty reply list is an empty list";

  list->parseResponse(parseJsonMap(R"({"items": [)" + kSimpleItem + ", " + kSimpleItem + "]}"));
  ASSERT_EQ(list->items()->size(), 2u);
  EXPECT_EQ((*list->items())[1]->itemId()->as_int64(), 9007199254740993);
  list->parseResponse(parseJsonMap(R"({"items": null})"));
  EXPECT_EQ(list->items()->size(), 2u) << "null leaves the list untouched";

  JsonValue broken = parseJson(kSimpleItem);
  broken.as_object().erase("shoot_at");
  EXPECT_EQ(reasonOf([&] {
              list->parseResponse(JsonMap{{"items", JsonList{parseJson(kSimpleItem), broken}}});
            }),
            "shootAt is missing in model SimpleItem");
  EXPECT_THROW(list->parseResponse(parseJsonMap(R"({"items": [null]})")), JsonTypeError);
}

}  // namespace
}  // namespace qb
