#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsName;

/// get_cms_name: one content name by its id, for a language and country.
class QBCmsGetCmsNameMessage final : public DictMessage<QBCmsGetCmsNameMessage> {
  QB_DICT_MESSAGE(QBCmsGetCmsNameMessage, "GetCmsName", cms::kGetCmsName)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetCmsNameMessage> initWithData(std::optional<JsonValue> cmsNameUid,
                                                              std::int64_t languageCode,
                                                              std::optional<JsonValue> countryCode) {
    return make<&Self::cmsNameUid_, &Self::languageCode_, &Self::countryCode_>(std::move(cmsNameUid), languageCode,
                                                                               std::move(countryCode));
  }

  QB_VALUE(cmsNameUid, CmsNameUid)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_REQUIRED(cmsNameUid, "cms_name_uid"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL(QBAPICmsName, cmsName, CmsName)
  QB_RESULTS(QB_OPTIONAL(cmsName, "cms_name"))
};

}  // namespace qb
