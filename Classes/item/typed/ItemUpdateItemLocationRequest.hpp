#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemLocationResponse.hpp>

namespace qb {

/// update_item_location: where an item's photograph was taken, in degrees.
struct ItemUpdateItemLocationRequest {
  std::int64_t itemId;
  double lng;
  double lat;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_id", &ItemUpdateItemLocationRequest::itemId),
                                                    qb::key("lng", &ItemUpdateItemLocationRequest::lng),
                                                    qb::key("lat", &ItemUpdateItemLocationRequest::lat));
  QB_TYPED_REQUEST(item::kUpdateItemLocation, ItemUpdateItemLocationResponse)
  bool operator==(const ItemUpdateItemLocationRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemUpdateItemLocationRequest>);

}  // namespace qb
