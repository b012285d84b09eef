#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>

namespace qb {

/// The reply of list_my_collections: the whole collection.
struct ItemListMyCollectionsResponse {
  std::vector<SimpleItemModel> items;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("items", &ItemListMyCollectionsResponse::items));
  QB_TYPED_RESPONSE(ItemListMyCollectionsResponse)
  bool operator==(const ItemListMyCollectionsResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemListMyCollectionsResponse>);

}  // namespace qb
