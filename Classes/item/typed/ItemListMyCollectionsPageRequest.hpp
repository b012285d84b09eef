#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemListMyCollectionsPageResponse.hpp>

namespace qb {

/// list_my_collections_page: one page of the collection. The next page is asked for with the item_id of the last item
/// received as lastItemId; specifyItemIds asks for those items only.
struct ItemListMyCollectionsPageRequest {
  std::optional<std::int64_t> pageSize = std::nullopt;
  std::optional<std::int64_t> lastItemId = std::nullopt;
  std::optional<std::vector<std::int64_t>> specifyItemIds = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("page_size", &ItemListMyCollectionsPageRequest::pageSize),
                     qb::key("last_item_id", &ItemListMyCollectionsPageRequest::lastItemId),
                     qb::key("specify_item_ids", &ItemListMyCollectionsPageRequest::specifyItemIds));
  QB_TYPED_REQUEST(item::kListMyCollectionsPage, ItemListMyCollectionsPageResponse)
  bool operator==(const ItemListMyCollectionsPageRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemListMyCollectionsPageRequest>);

}  // namespace qb
