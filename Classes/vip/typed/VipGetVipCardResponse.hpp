#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>

namespace qb {

/// The reply of vip_card.
struct VipGetVipCardResponse {
  VipInfoModel vipInfo;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("vip_info", &VipGetVipCardResponse::vipInfo));
  QB_TYPED_RESPONSE(VipGetVipCardResponse)
  bool operator==(const VipGetVipCardResponse&) const = default;
};
static_assert(APIDecodableResponse<VipGetVipCardResponse>);

}  // namespace qb
