#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemBatchDeleteItemsResponse.hpp>

namespace qb {

/// batch_delete_items: removes several items from the collection at once.
struct ItemBatchDeleteItemsRequest {
  std::vector<std::int64_t> itemIds;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_ids", &ItemBatchDeleteItemsRequest::itemIds));
  QB_TYPED_REQUEST(item::kBatchDeleteItems, ItemBatchDeleteItemsResponse)
  bool operator==(const ItemBatchDeleteItemsRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemBatchDeleteItemsRequest>);

}  // namespace qb
