#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of item_delete_notified; it carries nothing but success.
struct ItemItemDeleteNotifiedResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemItemDeleteNotifiedResponse)
  bool operator==(const ItemItemDeleteNotifiedResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemItemDeleteNotifiedResponse>);

}  // namespace qb
