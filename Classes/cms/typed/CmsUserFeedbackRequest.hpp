#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsUserFeedbackResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// user_feedback: the user's feedback on content, with the device it was sent from.
struct CmsUserFeedbackRequest {
  std::string userId;
  LanguageCode languageCode;
  std::string countryCode;
  DeviceType deviceType;
  std::string deviceOs;
  std::string deviceModel;
  std::string appVersion;
  std::string productName;
  std::string feedbackType;
  std::optional<std::string> content = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("user_id", &CmsUserFeedbackRequest::userId),
                                                    qb::key("language_code", &CmsUserFeedbackRequest::languageCode),
                                                    qb::key("country_code", &CmsUserFeedbackRequest::countryCode),
                                                    qb::key("device_type", &CmsUserFeedbackRequest::deviceType),
                                                    qb::key("device_os", &CmsUserFeedbackRequest::deviceOs),
                                                    qb::key("device_model", &CmsUserFeedbackRequest::deviceModel),
                                                    qb::key("app_version", &CmsUserFeedbackRequest::appVersion),
                                                    qb::key("product_name", &CmsUserFeedbackRequest::productName),
                                                    qb::key("feedback_type", &CmsUserFeedbackRequest::feedbackType),
                                                    qb::key("content", &CmsUserFeedbackRequest::content));
  QB_TYPED_REQUEST(cms::kUserFeedback, CmsUserFeedbackResponse)
  bool operator==(const CmsUserFeedbackRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsUserFeedbackRequest>);

}  // namespace qb
