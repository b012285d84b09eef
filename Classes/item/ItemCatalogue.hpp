// The item collection: every endpoint and every record, once. The faces refer to the endpoint constants
// declared here (qb::item::kGetItemDetail); everything that lists endpoints or records derives from these
// lines (see frame/Catalogue.hpp).
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_ITEM_ENDPOINTS(BOTH, DICT, TYPED)                                                                   \
  BOTH(kGetItemDetail, "v3/item/get_item_detail", get, required, QBItemGetItemDetailMessage,                  \
       ItemGetItemDetailRequest)                                                                              \
  BOTH(kListMyCollections, "v3/item/list_my_collections", get, required, QBItemListMyCollectionsMessage,      \
       ItemListMyCollectionsRequest)                                                                          \
  TYPED(kListMyCollectionsPage, "v3/item/list_my_collections_page", get, required,                            \
        ItemListMyCollectionsPageRequest)                                                                     \
  BOTH(kDeleteItem, "v3/item/delete_item", post, required, QBItemDeleteItemMessage, ItemDeleteItemRequest)    \
  TYPED(kBatchDeleteItems, "v3/item/batch_delete_items", post, required, ItemBatchDeleteItemsRequest)         \
  BOTH(kChangeItemCmsName, "v3/item/change_item_cms_name", post, required, QBItemChangeItemCmsNameMessage,    \
       ItemChangeItemCmsNameRequest)                                                                          \
  BOTH(kUpdateItemCustomName, "v3/item/update_item_custom_name", post, required,                              \
       QBItemUpdateItemCustomNameMessage, ItemUpdateItemCustomNameRequest)                                    \
  BOTH(kUpdateItemCustomNote, "v3/item/update_item_custom_note", post, required,                              \
       QBItemUpdateItemCustomNoteMessage, ItemUpdateItemCustomNoteRequest)                                    \
  BOTH(kUpdateItemLocation, "v3/item/update_item_location", post, required, QBItemUpdateItemLocationMessage,  \
       ItemUpdateItemLocationRequest)                                                                         \
  BOTH(kUpdateItemOriginalImageUrl, "v3/item/update_item_original_image_url", post, required,                 \
       QBItemUpdateItemOriginalImageUrlMessage, ItemUpdateItemOriginalImageUrlRequest)                        \
  TYPED(kUpdateItemOriginalDetImageUrl, "v3/item/update_item_original_det_image_url", post, required,         \
        ItemUpdateItemOriginalDetImageUrlRequest)                                                             \
  DICT(kItemDeleteCandidateUser, "v3/item/item_delete_candidate_user", post, required,                        \
       QBItemItemDeleteCandidateUserMessage)                                                                  \
  BOTH(kItemDeleteNotified, "v3/item/item_delete_notified", post, required, QBItemItemDeleteNotifiedMessage,  \
       ItemItemDeleteNotifiedRequest)                                                                         \
  TYPED(kCheckUserBuyCloudStorage, "v3/item/check_user_buy_cloud_storage", post, required,                    \
        ItemCheckUserBuyCloudStorageRequest)

/// Dictionary-face model, Typed-face model
#define QB_ITEM_RECORDS(BOTH, DICT, TYPED) \
  BOTH(QBAPIItemImage, ItemImageModel)     \
  BOTH(QBAPISimpleItem, SimpleItemModel)   \
  BOTH(QBAPIItemDetail, ItemDetailModel)

QB_CATALOGUE(item, QB_ITEM_ENDPOINTS, QB_ITEM_RECORDS)
