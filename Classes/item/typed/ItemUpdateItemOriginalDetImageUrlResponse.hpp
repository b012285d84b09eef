#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of update_item_original_det_image_url; it carries nothing but success.
struct ItemUpdateItemOriginalDetImageUrlResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemUpdateItemOriginalDetImageUrlResponse)
  bool operator==(const ItemUpdateItemOriginalDetImageUrlResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemUpdateItemOriginalDetImageUrlResponse>);

}  // namespace qb
