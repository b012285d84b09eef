#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/typed/ItemDetailModel.hpp>

namespace qb {

/// The reply of get_item_detail.
struct ItemGetItemDetailResponse {
  ItemDetailModel item;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item", &ItemGetItemDetailResponse::item));
  QB_TYPED_RESPONSE(ItemGetItemDetailResponse)
  bool operator==(const ItemGetItemDetailResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemGetItemDetailResponse>);

}  // namespace qb
