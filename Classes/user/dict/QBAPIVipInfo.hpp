#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The subscription summary of a user. No field is required in this face.
class QBAPIVipInfo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIVipInfo, "VipInfo")
  QB_VALUE(userId, UserId)
  QB_VALUE(isVip, IsVip)
  QB_VALUE(isTrial, IsTrial)
  QB_VALUE(isAutoRenew, IsAutoRenew)
  QB_VALUE(isVipInHistory, IsVipInHistory)
  QB_VALUE(isPaidInHistory, IsPaidInHistory)
  QB_VALUE(isRefundInHistory, IsRefundInHistory)
  QB_VALUE(isTrialAndExpired, IsTrialAndExpired)
  QB_INTEGER(vipLevel, VipLevel)
  QB_VALUE(sku, Sku)
  QB_VALUE(startAt, StartAt)
  QB_VALUE(expiredAt, ExpiredAt)
  QB_LIST(purchaseSubscriptionSkus, PurchaseSubscriptionSkus)
  QB_FIELDS(QB_OPTIONAL(userId, "user_id"), QB_OPTIONAL(isVip, "is_vip"), QB_OPTIONAL(isTrial, "is_trial"),
            QB_OPTIONAL(isAutoRenew, "is_auto_renew"), QB_OPTIONAL(isVipInHistory, "is_vip_in_history"),
            QB_OPTIONAL(isPaidInHistory, "is_paid_in_history"), QB_OPTIONAL(isRefundInHistory, "is_refund_in_history"),
            QB_OPTIONAL(isTrialAndExpired, "is_trial_and_expired"), QB_OPTIONAL(vipLevel, "vip_level"),
            QB_OPTIONAL(sku, "sku"), QB_OPTIONAL(startAt, "start_at"), QB_OPTIONAL(expiredAt, "expired_at"),
            QB_OPTIONAL(purchaseSubscriptionSkus, "purchase_subscription_skus"))
};

}  // namespace qb
