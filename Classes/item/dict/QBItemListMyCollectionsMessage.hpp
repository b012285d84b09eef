#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

class QBAPISimpleItem;

/// list_my_collections: the whole collection in one reply. Both parameters are numbers used as booleans,
/// passed through to the server and sent only when set.
class QBItemListMyCollectionsMessage final : public DictMessage<QBItemListMyCollectionsMessage> {
  QB_DICT_MESSAGE(QBItemListMyCollectionsMessage, "ListMyCollections", item::kListMyCollections)
  static std::shared_ptr<QBItemListMyCollectionsMessage> initWithData(std::optional<JsonValue> returnFirstItemInBatch,
                                                                      std::optional<JsonValue> signImageUrl) {
    return make<&Self::returnFirstItemInBatch_, &Self::signImageUrl_>(std::move(returnFirstItemInBatch),
                                                                      std::move(signImageUrl));
  }

  QB_VALUE(returnFirstItemInBatch, ReturnFirstItemInBatch)
  QB_VALUE(signImageUrl, SignImageUrl)
  QB_PARAMS(QB_OPTIONAL(returnFirstItemInBatch, "return_first_item_in_batch"),
            QB_OPTIONAL(signImageUrl, "sign_image_url"))

  QB_MODEL_LIST(QBAPISimpleItem, items, Items)
  QB_RESULTS(QB_OPTIONAL(items, "items"))
};

}  // namespace qb
