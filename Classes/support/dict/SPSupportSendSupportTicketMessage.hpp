#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>

namespace qb {

/// send_support_ticket: a message to the support team, with image addresses, tags and any further fields
/// the app wants the team to see. The images and tags each travel as the JSON text of their list (one
/// string value), the extra fields as the compact JSON text of their map. The reply carries nothing to
/// read.
class SPSupportSendSupportTicketMessage final : public DictMessage<SPSupportSendSupportTicketMessage> {
  QB_DICT_MESSAGE(SPSupportSendSupportTicketMessage, "SendSupportTicket", support::kSendSupportTicket)
  /// supportType is the number of a qb::SupportType, languageCode that of a qb::LanguageCode.
  static std::shared_ptr<SPSupportSendSupportTicketMessage> initWithData(
      std::optional<JsonValue> email, std::int64_t supportType, std::int64_t languageCode,
      std::optional<JsonValue> countryCode, std::optional<JsonValue> content, std::optional<JsonList> images,
      std::optional<JsonList> tags, std::optional<JsonMap> extraFields) {
    return make<&Self::email_, &Self::supportType_, &Self::languageCode_, &Self::countryCode_, &Self::content_,
                &Self::images_, &Self::tags_, &Self::extraFields_>(
        std::move(email), supportType, languageCode, std::move(countryCode), std::move(content), std::move(images),
        std::move(tags), std::move(extraFields));
  }

  QB_VALUE(email, Email)
  QB_INTEGER(supportType, SupportType)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_VALUE(content, Content)
  QB_LIST(images, Images)
  QB_LIST(tags, Tags)
  QB_MAP(extraFields, ExtraFields)
  QB_PARAMS(QB_REQUIRED(email, "email"), QB_OPTIONAL(supportType, "support_type"),
            QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"),
            QB_OPTIONAL(content, "content"), QB_OPTIONAL(images, "images"), QB_OPTIONAL(tags, "tags"),
            QB_OPTIONAL(extraFields, "extra_fields"))

  QB_RESULTS()
};

}  // namespace qb
