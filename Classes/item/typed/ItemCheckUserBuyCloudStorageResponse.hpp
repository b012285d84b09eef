#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of check_user_buy_cloud_storage: whether the user has bought cloud storage.
struct ItemCheckUserBuyCloudStorageResponse {
  bool hasBuyCloudStorage;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("has_buy_cloud_storage", &ItemCheckUserBuyCloudStorageResponse::hasBuyCloudStorage));
  QB_TYPED_RESPONSE(ItemCheckUserBuyCloudStorageResponse)
  bool operator==(const ItemCheckUserBuyCloudStorageResponse&) const = default;
};
static_assert(APIDecodableResponse<ItemCheckUserBuyCloudStorageResponse>);

}  // namespace qb
