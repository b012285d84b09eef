#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsResponse.hpp>

namespace qb {

/// list_my_collections: the whole collection in one reply; both flags are passed through to the server.
struct ItemListMyCollectionsRequest {
  std::optional<bool> returnFirstItemInBatch = std::nullopt;
  std::optional<bool> signImageUrl = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("return_first_item_in_batch", &ItemListMyCollectionsRequest::returnFirstItemInBatch),
                     qb::key("sign_image_url", &ItemListMyCollectionsRequest::signImageUrl));
  QB_TYPED_REQUEST(item::kListMyCollections, ItemListMyCollectionsResponse)
  bool operator==(const ItemListMyCollectionsRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemListMyCollectionsRequest>);

}  // namespace qb
