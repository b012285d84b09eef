#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemCustomNameResponse.hpp>

namespace qb {

/// update_item_custom_name: the user's own name for an item.
struct ItemUpdateItemCustomNameRequest {
  std::int64_t itemId;
  std::string uid;
  std::string name;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_id", &ItemUpdateItemCustomNameRequest::itemId),
                                                    qb::key("uid", &ItemUpdateItemCustomNameRequest::uid),
                                                    qb::key("name", &ItemUpdateItemCustomNameRequest::name));
  QB_TYPED_REQUEST(item::kUpdateItemCustomName, ItemUpdateItemCustomNameResponse)
  bool operator==(const ItemUpdateItemCustomNameRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemUpdateItemCustomNameRequest>);

}  // namespace qb
