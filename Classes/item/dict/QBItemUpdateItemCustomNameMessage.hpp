#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// update_item_custom_name: the user's own name for an item.
class QBItemUpdateItemCustomNameMessage final : public DictMessage<QBItemUpdateItemCustomNameMessage> {
  QB_DICT_MESSAGE(QBItemUpdateItemCustomNameMessage, "UpdateItemCustomName", item::kUpdateItemCustomName)
  static std::shared_ptr<QBItemUpdateItemCustomNameMessage> initWithData(std::optional<JsonValue> itemId,
                                                                         std::optional<JsonValue> uid,
                                                                         std::optional<JsonValue> name) {
    return make<&Self::itemId_, &Self::uid_, &Self::name_>(std::move(itemId), std::move(uid), std::move(name));
  }

  QB_VALUE(itemId, ItemId)
  QB_VALUE(uid, Uid)
  QB_VALUE(name, Name)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(uid, "uid"), QB_REQUIRED(name, "name"))
  QB_RESULTS()
};

}  // namespace qb
