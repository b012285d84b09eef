#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsNameList;

/// get_cms_name_lists: the curated name lists of a content type, for a language and country.
class QBCmsGetCmsNameListsMessage final : public DictMessage<QBCmsGetCmsNameListsMessage> {
  QB_DICT_MESSAGE(QBCmsGetCmsNameListsMessage, "GetCmsNameLists", cms::kGetCmsNameLists)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetCmsNameListsMessage> initWithData(std::optional<JsonValue> contentType,
                                                                   std::int64_t languageCode,
                                                                   std::optional<JsonValue> countryCode) {
    return make<&Self::contentType_, &Self::languageCode_, &Self::countryCode_>(std::move(contentType), languageCode,
                                                                                std::move(countryCode));
  }

  QB_VALUE(contentType, ContentType)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_REQUIRED(contentType, "content_type"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL_LIST(QBAPICmsNameList, cmsNameLists, CmsNameLists)
  QB_RESULTS(QB_OPTIONAL(cmsNameLists, "cms_name_lists"))
};

}  // namespace qb
