#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>

namespace qb {

/// The subscription summary a purchase restoration returns, with an opaque login secret (decoded by the
/// app from its own reply).
struct RestoreResultModel {
  VipInfoModel vipInfo;
  std::optional<std::string> loginSecret = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("vip_info", &RestoreResultModel::vipInfo),
                                                    qb::key("login_secret", &RestoreResultModel::loginSecret));
  bool operator==(const RestoreResultModel&) const = default;
};
static_assert(APIModel<RestoreResultModel>);

}  // namespace qb
