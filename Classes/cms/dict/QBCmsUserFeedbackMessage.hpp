#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// user_feedback: sends a user's feedback on content, with the device and app it came from. The reply
/// carries nothing to read.
class QBCmsUserFeedbackMessage final : public DictMessage<QBCmsUserFeedbackMessage> {
  QB_DICT_MESSAGE(QBCmsUserFeedbackMessage, "UserFeedback", cms::kUserFeedback)
  /// languageCode is the number of a qb::LanguageCode, deviceType that of the host's device type; userId
  /// is sent as the object given.
  static std::shared_ptr<QBCmsUserFeedbackMessage> initWithData(
      std::optional<JsonValue> userId, std::int64_t languageCode, std::optional<JsonValue> countryCode,
      std::int64_t deviceType, std::optional<JsonValue> deviceOs, std::optional<JsonValue> deviceModel,
      std::optional<JsonValue> appVersion, std::optional<JsonValue> productName, std::optional<JsonValue> feedbackType,
      std::optional<JsonValue> content) {
    return make<&Self::userId_, &Self::languageCode_, &Self::countryCode_, &Self::deviceType_, &Self::deviceOs_,
                &Self::deviceModel_, &Self::appVersion_, &Self::productName_, &Self::feedbackType_, &Self::content_>(
        std::move(userId), languageCode, std::move(countryCode), deviceType, std::move(deviceOs),
        std::move(deviceModel), std::move(appVersion), std::move(productName), std::move(feedbackType),
        std::move(content));
  }

  QB_VALUE(userId, UserId)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_INTEGER(deviceType, DeviceType)
  QB_VALUE(deviceOs, DeviceOs)
  QB_VALUE(deviceModel, DeviceModel)
  QB_VALUE(appVersion, AppVersion)
  QB_VALUE(productName, ProductName)
  QB_VALUE(feedbackType, FeedbackType)
  QB_VALUE(content, Content)
  QB_PARAMS(QB_REQUIRED(userId, "user_id"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"), QB_OPTIONAL(deviceType, "device_type"),
            QB_REQUIRED(deviceOs, "device_os"), QB_REQUIRED(deviceModel, "device_model"),
            QB_REQUIRED(appVersion, "app_version"), QB_REQUIRED(productName, "product_name"),
            QB_REQUIRED(feedbackType, "feedback_type"), QB_OPTIONAL(content, "content"))

  QB_RESULTS()
};

}  // namespace qb
