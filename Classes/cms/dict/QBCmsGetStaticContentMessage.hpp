#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// get_static_content: the static text of a content type, for a language and country.
class QBCmsGetStaticContentMessage final : public DictMessage<QBCmsGetStaticContentMessage> {
  QB_DICT_MESSAGE(QBCmsGetStaticContentMessage, "GetStaticContent", cms::kGetStaticContent)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetStaticContentMessage> initWithData(std::optional<JsonValue> contentType,
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

  QB_VALUE(content, Content)
  QB_RESULTS(QB_OPTIONAL(content, "content"))
};

}  // namespace qb
