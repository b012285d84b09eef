#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemItemDeleteNotifiedResponse.hpp>

namespace qb {

/// item_delete_notified: tells the server that the user has seen the notice that stored items are to be deleted.
struct ItemItemDeleteNotifiedRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(item::kItemDeleteNotified, ItemItemDeleteNotifiedResponse)
  bool operator==(const ItemItemDeleteNotifiedRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemItemDeleteNotifiedRequest>);

}  // namespace qb
