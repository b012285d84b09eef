// Every Dictionary-face class of the item collection.
#pragma once

// Item details embed content names.
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/dict/QBAPIItemDetail.hpp>
#include <QBComponentAPI/item/dict/QBAPIItemImage.hpp>
#include <QBComponentAPI/item/dict/QBAPISimpleItem.hpp>
#include <QBComponentAPI/item/dict/QBItemChangeItemCmsNameMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemDeleteItemMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemGetItemDetailMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemItemDeleteCandidateUserMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemItemDeleteNotifiedMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemListMyCollectionsMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemUpdateItemCustomNameMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemUpdateItemCustomNoteMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemUpdateItemLocationMessage.hpp>
#include <QBComponentAPI/item/dict/QBItemUpdateItemOriginalImageUrlMessage.hpp>
