#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>

namespace qb {

class SPAPIAutoReplyArticle;

/// get_customer_support_auto_reply: an automatic answer to a question the user typed, as the topic the
/// service assigned to it and the articles that match it.
class SPSupportGetCustomerSupportAutoReplyMessage final
    : public DictMessage<SPSupportGetCustomerSupportAutoReplyMessage> {
  QB_DICT_MESSAGE(SPSupportGetCustomerSupportAutoReplyMessage, "GetCustomerSupportAutoReply",
                  support::kGetCustomerSupportAutoReply)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<SPSupportGetCustomerSupportAutoReplyMessage> initWithData(std::int64_t languageCode,
                                                                                   std::optional<JsonValue> countryCode,
                                                                                   std::optional<JsonValue> content) {
    return make<&Self::languageCode_, &Self::countryCode_, &Self::content_>(languageCode, std::move(countryCode),
                                                                            std::move(content));
  }

  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_VALUE(content, Content)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"),
            QB_REQUIRED(content, "content"))

  /// The number of a qb::AutoReplyClassification, as the reply gave it (0 when it gave none; unchecked).
  QB_INTEGER(classification, Classification)
  QB_MODEL_LIST(SPAPIAutoReplyArticle, autoReplyArticle, AutoReplyArticle)
  QB_RESULTS(QB_OPTIONAL(classification, "classification"), QB_OPTIONAL(autoReplyArticle, "auto_reply_article"))
};

}  // namespace qb
