#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_item_original_image_url; it carries nothing but success.
struct ItemUpdateItemOriginalImageUrlResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemUpdateItemOriginalImageUrlResponse)
  bool operator==(const ItemUpdateItemOriginalImageUrlResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemUpdateItemOriginalImageUrlResponse>);

}  // namespace qb
