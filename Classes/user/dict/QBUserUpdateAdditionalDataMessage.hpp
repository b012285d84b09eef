#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update_additional_data: the e-mail notification flag and the price label.
class QBUserUpdateAdditionalDataMessage final : public DictMessage<QBUserUpdateAdditionalDataMessage> {
  QB_DICT_MESSAGE(QBUserUpdateAdditionalDataMessage, "UpdateAdditionalData", user::kUpdateAdditionalData)
  static std::shared_ptr<QBUserUpdateAdditionalDataMessage> initWithData(
      std::optional<JsonValue> emailNotificationEnabled, std::optional<JsonValue> growsPriceLabel) {
    return make<&Self::emailNotificationEnabled_, &Self::growsPriceLabel_>(std::move(emailNotificationEnabled),
                                                                           std::move(growsPriceLabel));
  }

  QB_VALUE(emailNotificationEnabled, EmailNotificationEnabled)
  QB_VALUE(growsPriceLabel, GrowsPriceLabel)
  QB_PARAMS(QB_OPTIONAL(emailNotificationEnabled, "email_notification_enabled"),
            QB_OPTIONAL(growsPriceLabel, "grows_price_label"))
  QB_RESULTS()
};

}  // namespace qb
