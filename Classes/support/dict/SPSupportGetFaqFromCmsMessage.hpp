#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>

namespace qb {

class SPAPICmsFaqCategory;

/// get_faq_from_cms: the FAQ catalogue, by category, for a language and country.
class SPSupportGetFaqFromCmsMessage final : public DictMessage<SPSupportGetFaqFromCmsMessage> {
  QB_DICT_MESSAGE(SPSupportGetFaqFromCmsMessage, "GetFaqFromCms", support::kGetFaqFromCms)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<SPSupportGetFaqFromCmsMessage> initWithData(std::int64_t languageCode,
                                                                     std::optional<JsonValue> countryCode) {
    return make<&Self::languageCode_, &Self::countryCode_>(languageCode, std::move(countryCode));
  }

  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL_LIST(SPAPICmsFaqCategory, cmsFaqCategoryList, CmsFaqCategoryList)
  QB_RESULTS(QB_OPTIONAL(cmsFaqCategoryList, "cms_faq_category_list"))
};

}  // namespace qb
