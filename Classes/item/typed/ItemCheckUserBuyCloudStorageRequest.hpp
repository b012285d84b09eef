#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemCheckUserBuyCloudStorageResponse.hpp>

namespace qb {

/// check_user_buy_cloud_storage: whether the user has bought cloud storage.
struct ItemCheckUserBuyCloudStorageRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(item::kCheckUserBuyCloudStorage, ItemCheckUserBuyCloudStorageResponse)
  bool operator==(const ItemCheckUserBuyCloudStorageRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemCheckUserBuyCloudStorageRequest>);

}  // namespace qb
