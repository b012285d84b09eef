#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsStaticUrl;

/// get_static_url: the light and dark pages of a content type, optionally of one piece of it (uid), for a
/// language and country.
class QBCmsGetStaticUrlMessage final : public DictMessage<QBCmsGetStaticUrlMessage> {
  QB_DICT_MESSAGE(QBCmsGetStaticUrlMessage, "GetStaticUrl", cms::kGetStaticUrl)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetStaticUrlMessage> initWithData(std::optional<JsonValue> contentType,
                                                                std::int64_t languageCode,
                                                                std::optional<JsonValue> countryCode,
                                                                std::optional<JsonValue> uid) {
    return make<&Self::contentType_, &Self::languageCode_, &Self::countryCode_, &Self::uid_>(
        std::move(contentType), languageCode, std::move(countryCode), std::move(uid));
  }

  QB_VALUE(contentType, ContentType)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_VALUE(uid, Uid)
  QB_PARAMS(QB_REQUIRED(contentType, "content_type"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"), QB_OPTIONAL(uid, "uid"))

  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_RESULTS(QB_OPTIONAL(cmsStaticUrl, "cms_static_url"))
};

}  // namespace qb
