#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of change_item_cms_name; it carries nothing but success.
struct ItemChangeItemCmsNameResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(ItemChangeItemCmsNameResponse)
  bool operator==(const ItemChangeItemCmsNameResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemChangeItemCmsNameResponse>);

}  // namespace qb
