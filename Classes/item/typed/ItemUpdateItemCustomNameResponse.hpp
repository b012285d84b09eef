#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_item_custom_name; it carries nothing but success.
struct ItemUpdateItemCustomNameResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemUpdateItemCustomNameResponse)
  bool operator==(const ItemUpdateItemCustomNameResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemUpdateItemCustomNameResponse>);

}  // namespace qb
