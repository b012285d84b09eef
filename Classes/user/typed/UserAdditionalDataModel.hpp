#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// Flags that accompany the user in every login-type reply.
struct UserAdditionalDataModel {
  bool existUser;
  bool todayUser;
  bool isVipInHistory;
  std::optional<bool> emailNotificationEnabled = std::nullopt;
  std::optional<std::string> growsPriceLabel = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("exist_user", &UserAdditionalDataModel::existUser),
                     qb::key("today_user", &UserAdditionalDataModel::todayUser),
                     qb::key("is_vip_in_history", &UserAdditionalDataModel::isVipInHistory),
                     qb::key("email_notification_enabled", &UserAdditionalDataModel::emailNotificationEnabled),
                     qb::key("grows_price_label", &UserAdditionalDataModel::growsPriceLabel));
  bool operator==(const UserAdditionalDataModel&) const = default;
};
static_assert(APIModel<UserAdditionalDataModel>);

}  // namespace qb
