#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemDeleteItemResponse.hpp>

namespace qb {

/// delete_item: removes one item from the collection.
struct ItemDeleteItemRequest {
  std::int64_t itemId;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_id", &ItemDeleteItemRequest::itemId));
  QB_TYPED_REQUEST(item::kDeleteItem, ItemDeleteItemResponse)
  bool operator==(const ItemDeleteItemRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemDeleteItemRequest>);

}  // namespace qb
