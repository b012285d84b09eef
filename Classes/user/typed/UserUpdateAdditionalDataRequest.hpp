#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserUpdateAdditionalDataResponse.hpp>

namespace qb {

/// update_additional_data: the e-mail notification flag and the price label.
struct UserUpdateAdditionalDataRequest {
  std::optional<bool> emailNotificationEnabled = std::nullopt;
  std::optional<std::string> growsPriceLabel = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("email_notification_enabled", &UserUpdateAdditionalDataRequest::emailNotificationEnabled),
                     qb::key("grows_price_label", &UserUpdateAdditionalDataRequest::growsPriceLabel));
  QB_TYPED_REQUEST(user::kUpdateAdditionalData, UserUpdateAdditionalDataResponse)
  bool operator==(const UserUpdateAdditionalDataRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateAdditionalDataRequest>);

}  // namespace qb
