// Every Typed-face record of the item collection.
#pragma once

#include <QBComponentAPI/frame/CodecInstances.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemBatchDeleteItemsRequest.hpp>
#include <QBComponentAPI/item/typed/ItemBatchDeleteItemsResponse.hpp>
#include <QBComponentAPI/item/typed/ItemChangeItemCmsNameRequest.hpp>
#include <QBComponentAPI/item/typed/ItemChangeItemCmsNameResponse.hpp>
#include <QBComponentAPI/item/typed/ItemCheckUserBuyCloudStorageRequest.hpp>
#include <QBComponentAPI/item/typed/ItemCheckUserBuyCloudStorageResponse.hpp>
#include <QBComponentAPI/item/typed/ItemDeleteItemRequest.hpp>
#include <QBComponentAPI/item/typed/ItemDeleteItemResponse.hpp>
#include <QBComponentAPI/item/typed/ItemDetailModel.hpp>
#include <QBComponentAPI/item/typed/ItemGetItemDetailRequest.hpp>
#include <QBComponentAPI/item/typed/ItemGetItemDetailResponse.hpp>
#include <QBComponentAPI/item/typed/ItemImageModel.hpp>
#include <QBComponentAPI/item/typed/ItemItemDeleteNotifiedRequest.hpp>
#include <QBComponentAPI/item/typed/ItemItemDeleteNotifiedResponse.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsPageRequest.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsPageResponse.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsRequest.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsResponse.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNameRequest.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNameResponse.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNoteRequest.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNoteResponse.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemLocationRequest.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemLocationResponse.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalDetImageUrlRequest.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalDetImageUrlResponse.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalImageUrlRequest.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalImageUrlResponse.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_ITEM_ENDPOINTS, QB_ITEM_RECORDS)
