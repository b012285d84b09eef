#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// delete_item: removes one item from the collection.
class QBItemDeleteItemMessage final : public DictMessage<QBItemDeleteItemMessage> {
  QB_DICT_MESSAGE(QBItemDeleteItemMessage, "DeleteItem", item::kDeleteItem)
  static std::shared_ptr<QBItemDeleteItemMessage> initWithData(std::optional<JsonValue> itemId) {
    return make<&Self::itemId_>(std::move(itemId));
  }

  QB_VALUE(itemId, ItemId)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"))
  QB_RESULTS()
};

}  // namespace qb
