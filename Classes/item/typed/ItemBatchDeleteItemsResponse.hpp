#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of batch_delete_items; it carries nothing but success.
struct ItemBatchDeleteItemsResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemBatchDeleteItemsResponse)
  bool operator==(const ItemBatchDeleteItemsResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemBatchDeleteItemsResponse>);

}  // namespace qb
