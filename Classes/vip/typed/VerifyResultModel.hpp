#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>

namespace qb {

/// The subscription summary a purchase verification returns (decoded by the app from its own reply).
struct VerifyResultModel {
  VipInfoModel vipInfo;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("vip_info", &VerifyResultModel::vipInfo));
  bool operator==(const VerifyResultModel&) const = default;
};
static_assert(APIModel<VerifyResultModel>);

}  // namespace qb
