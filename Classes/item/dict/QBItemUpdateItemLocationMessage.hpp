#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// update_item_location: where an item's photograph was taken, in degrees.
class QBItemUpdateItemLocationMessage final : public DictMessage<QBItemUpdateItemLocationMessage> {
  QB_DICT_MESSAGE(QBItemUpdateItemLocationMessage, "UpdateItemLocation", item::kUpdateItemLocation)
  static std::shared_ptr<QBItemUpdateItemLocationMessage> initWithData(std::optional<JsonValue> itemId,
                                                                       std::optional<JsonValue> lng,
                                                                       std::optional<JsonValue> lat) {
    return make<&Self::itemId_, &Self::lng_, &Self::lat_>(std::move(itemId), std::move(lng), std::move(lat));
  }

  QB_VALUE(itemId, ItemId)
  QB_VALUE(lng, Lng)
  QB_VALUE(lat, Lat)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(lng, "lng"), QB_REQUIRED(lat, "lat"))
  QB_RESULTS()
};

}  // namespace qb
