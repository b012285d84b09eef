#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_item_location; it carries nothing but success.
struct ItemUpdateItemLocationResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemUpdateItemLocationResponse)
  bool operator==(const ItemUpdateItemLocationResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemUpdateItemLocationResponse>);

}  // namespace qb
