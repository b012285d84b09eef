#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of delete_item; it carries nothing but success.
struct ItemDeleteItemResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemDeleteItemResponse)
  bool operator==(const ItemDeleteItemResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemDeleteItemResponse>);

}  // namespace qb
