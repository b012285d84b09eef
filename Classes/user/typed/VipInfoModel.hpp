#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/enums/VipLevel.hpp>

namespace qb {

/// The subscription summary of a user.
struct VipInfoModel {
  std::int64_t userId;
  bool isVip;
  bool isTrial;
  bool isAutoRenew;
  bool isVipInHistory;
  bool isPaidInHistory;
  std::optional<bool> isTrialAndExpired = std::nullopt;
  VipLevel vipLevel;
  std::optional<std::string> sku = std::nullopt;
  std::optional<Date> startAt = std::nullopt;
  std::optional<Date> expiredAt = std::nullopt;
  std::optional<std::vector<std::string>> purchaseSubscriptionSkus = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("user_id", &VipInfoModel::userId), qb::key("is_vip", &VipInfoModel::isVip),
                     qb::key("is_trial", &VipInfoModel::isTrial), qb::key("is_auto_renew", &VipInfoModel::isAutoRenew),
                     qb::key("is_vip_in_history", &VipInfoModel::isVipInHistory),
                     qb::key("is_paid_in_history", &VipInfoModel::isPaidInHistory),
                     qb::key("is_trial_and_expired", &VipInfoModel::isTrialAndExpired),
                     qb::key("vip_level", &VipInfoModel::vipLevel), qb::key("sku", &VipInfoModel::sku),
                     qb::key("start_at", &VipInfoModel::startAt), qb::key("expired_at", &VipInfoModel::expiredAt),
                     qb::key("purchase_subscription_skus", &VipInfoModel::purchaseSubscriptionSkus));
  bool operator==(const VipInfoModel&) const = default;
};
static_assert(APIModel<VipInfoModel>);

}  // namespace qb
