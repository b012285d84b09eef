#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <QBComponentAPI/vip/typed/VipGetVipCardResponse.hpp>

namespace qb {

/// vip_card: the signed-in user's subscription summary.
struct VipGetVipCardRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(vip::kVipCard, VipGetVipCardResponse)
  bool operator==(const VipGetVipCardRequest&) const = default;
};
static_assert(APIEncodableRequest<VipGetVipCardRequest>);

}  // namespace qb
