#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// Flags that accompany the user in every login-type reply.
class QBAPIUserAdditionalData final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIUserAdditionalData, "UserAdditionalData")
  QB_VALUE(existUser, ExistUser)
  QB_VALUE(todayUser, TodayUser)
  QB_VALUE(isVipInHistory, IsVipInHistory)
  QB_VALUE(emailNotificationEnabled, EmailNotificationEnabled)
  QB_VALUE(growsPriceLabel, GrowsPriceLabel)
  QB_FIELDS(QB_REQUIRED(existUser, "exist_user"), QB_REQUIRED(todayUser, "today_user"),
            QB_REQUIRED(isVipInHistory, "is_vip_in_history"),
            QB_OPTIONAL(emailNotificationEnabled, "email_notification_enabled"),
            QB_OPTIONAL(growsPriceLabel, "grows_price_label"))
};

}  // namespace qb
