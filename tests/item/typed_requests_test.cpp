// Every Typed-face item request: the exact body it encodes, with every field and with its optional
// fields left out.
#include <gtest/gtest.h>

#include <QBComponentAPI/item/typed/ItemTyped.hpp>
#include <functional>

#include "typed_helpers.hpp"

namespace qb {
namespace {

constexpr std::int64_t kId = 9007199254740993;

const std::vector<RequestRow>& rows() {
  static const std::vector<RequestRow> table{
      {[] {
         return describe(ItemGetItemDetailRequest{
             .itemId = kId, .languageCode = LanguageCode::ja, .countryCode = "JP", .signImageUrl = true});
       },
       "v3/item/get_item_detail",
       R"({"item_id":9007199254740993,"language_code":3,"country_code":"JP","sign_image_url":true})"},
      {[] {
         return describe(
             ItemGetItemDetailRequest{.itemId = kId, .languageCode = LanguageCode::en, .countryCode = "US"});
       },
       "v3/item/get_item_detail", R"({"item_id":9007199254740993,"language_code":0,"country_code":"US"})"},
      {[] { return describe(ItemListMyCollectionsRequest{.returnFirstItemInBatch = false, .signImageUrl = true}); },
       "v3/item/list_my_collections", R"({"return_first_item_in_batch":false,"sign_image_url":true})"},
      {[] { return describe(ItemListMyCollectionsRequest{}); }, "v3/item/list_my_collections", "{}"},
      {[] {
         return describe(ItemListMyCollectionsPageRequest{
             .pageSize = 20, .lastItemId = kId, .specifyItemIds = std::vector<std::int64_t>{kId, -1}});
       },
       "v3/item/list_my_collections_page",
       R"({"page_size":20,"last_item_id":9007199254740993,"specify_item_ids":[9007199254740993,-1]})"},
      {[] { return describe(ItemListMyCollectionsPageRequest{}); }, "v3/item/list_my_collections_page", "{}"},
      {[] { return describe(ItemListMyCollectionsPageRequest{.specifyItemIds = std::vector<std::int64_t>{}}); },
       "v3/item/list_my_collections_page", R"({"specify_item_ids":[]})"},
      {[] { return describe(ItemDeleteItemRequest{.itemId = kId}); }, "v3/item/delete_item",
       R"({"item_id":9007199254740993})"},
      {[] {
         return describe(ItemBatchDeleteItemsRequest{.itemIds = {kId, 2}});
       },
       "v3/item/batch_delete_items", R"({"item_ids":[9007199254740993,2]})"},
      {[] { return describe(ItemBatchDeleteItemsRequest{}); }, "v3/item/batch_delete_items", R"({"item_ids":[]})"},
      {[] {
         return describe(ItemChangeItemCmsNameRequest{.itemId = kId, .cmsNameUid = "cn-2", .cmsNameName = "Pothos"});
       },
       "v3/item/change_item_cms_name",
       R"({"item_id":9007199254740993,"cms_name_uid":"cn-2","cms_name_name":"Pothos"})"},
      {[] { return describe(ItemUpdateItemCustomNameRequest{.itemId = kId, .uid = "u-1", .name = "\"Monty\""}); },
       "v3/item/update_item_custom_name", R"({"item_id":9007199254740993,"uid":"u-1","name":"\"Monty\""})"},
      {[] { return describe(ItemUpdateItemCustomNoteRequest{.itemId = kId, .note = ""}); },
       "v3/item/update_item_custom_note", R"({"item_id":9007199254740993,"note":""})"},
      {[] { return describe(ItemUpdateItemLocationRequest{.itemId = kId, .lng = 0, .lat = -35.5}); },
       "v3/item/update_item_location", R"({"item_id":9007199254740993,"lng":0.0,"lat":-35.5})"},
      {[] {
         return describe(ItemUpdateItemOriginalImageUrlRequest{.itemId = kId,
                                                               .originalImageUrl = "https://u.example/o.heic",
                                                               .originalImageSha1 = "da39a3ee",
                                                               .originalImageHeight = 4032,
                                                               .originalImageWidth = 3024,
                                                               .originalImageFileSize = 5368709120,
                                                               .originalImageFileFormat = "heic"});
       },
       "v3/item/update_item_original_image_url",
       R"({"item_id":9007199254740993,"original_image_url":"https://u.example/o.heic","original_image_sha1":"da39a3ee",)"
       R"("original_image_height":4032,"original_image_width":3024,"original_image_file_size":5368709120,)"
       R"("original_image_file_format":"heic"})"},
      {[] {
         return describe(
             ItemUpdateItemOriginalImageUrlRequest{.itemId = kId, .originalImageUrl = "https://u.example/o"});
       },
       "v3/item/update_item_original_image_url",
       R"({"item_id":9007199254740993,"original_image_url":"https://u.example/o"})"},
      {[] {
         return describe(ItemUpdateItemOriginalDetImageUrlRequest{.itemId = kId,
                                                                  .originalDetImageUrl = "https://u.example/d.jpg",
                                                                  .originalImageSha1 = "da39a3ee",
                                                                  .originalImageHeight = 640,
                                                                  .originalImageWidth = 480,
                                                                  .originalImageFileSize = 51200,
                                                                  .originalImageFileFormat = "jpeg"});
       },
       "v3/item/update_item_original_det_image_url",
       R"({"item_id":9007199254740993,"original_det_image_url":"https://u.example/d.jpg",)"
       R"("original_image_sha1":"da39a3ee","original_image_height":640,"original_image_width":480,)"
       R"("original_image_file_size":51200,"original_image_file_format":"jpeg"})"},
      {[] {
         return describe(
             ItemUpdateItemOriginalDetImageUrlRequest{.itemId = kId, .originalDetImageUrl = "https://u.example/d"});
       },
       "v3/item/update_item_original_det_image_url",
       R"({"item_id":9007199254740993,"original_det_image_url":"https://u.example/d"})"},
      {[] { return describe(ItemItemDeleteNotifiedRequest{}); }, "v3/item/item_delete_notified", "{}"},
      {[] { return describe(ItemCheckUserBuyCloudStorageRequest{}); }, "v3/item/check_user_buy_cloud_storage", "{}"},
  };
  return table;
}

TEST(ItemTypedRequests, EncodeExactly) { expectRequestRows(rows()); }

}  // namespace
}  // namespace qb
