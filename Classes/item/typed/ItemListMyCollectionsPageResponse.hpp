#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>

namespace qb {

/// The reply of list_my_collections_page: the page's items in the server's order, and nothing else (the
/// next page starts after the item_id of the last one).
struct ItemListMyCollectionsPageResponse {
  std::vector<SimpleItemModel> items;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("items", &ItemListMyCollectionsPageResponse::items));
  QB_TYPED_RESPONSE(ItemListMyCollectionsPageResponse)
  bool operator==(const ItemListMyCollectionsPageResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemListMyCollectionsPageResponse>);

}  // namespace qb
