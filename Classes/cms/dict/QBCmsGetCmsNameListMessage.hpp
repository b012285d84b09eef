#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsName;

/// get_cms_name_list: several content names by id, for a language and country. The ids travel as the
/// JSON text of the list (one string value), not as an array.
class QBCmsGetCmsNameListMessage final : public DictMessage<QBCmsGetCmsNameListMessage> {
  QB_DICT_MESSAGE(QBCmsGetCmsNameListMessage, "GetCmsNameList", cms::kGetCmsNameList)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetCmsNameListMessage> initWithData(std::optional<JsonList> cmsNameUids,
                                                                  std::int64_t languageCode,
                                                                  std::optional<JsonValue> countryCode) {
    return make<&Self::cmsNameUids_, &Self::languageCode_, &Self::countryCode_>(std::move(cmsNameUids), languageCode,
                                                                                std::move(countryCode));
  }

  QB_LIST(cmsNameUids, CmsNameUids)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_REQUIRED(cmsNameUids, "cms_name_uids"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL_LIST(QBAPICmsName, cmsNameList, CmsNameList)
  QB_RESULTS(QB_OPTIONAL(cmsNameList, "cms_name_list"))
};

}  // namespace qb
