#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsArticle;

/// articles: the articles of a content type (optional) in a language. The one content call without a
/// country code; it never raises.
class QBCmsGetCmsArticlesMessage final : public DictMessage<QBCmsGetCmsArticlesMessage> {
  QB_DICT_MESSAGE(QBCmsGetCmsArticlesMessage, "GetCmsArticles", cms::kArticles)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBCmsGetCmsArticlesMessage> initWithData(std::optional<JsonValue> contentType,
                                                                  std::int64_t languageCode) {
    return make<&Self::contentType_, &Self::languageCode_>(std::move(contentType), languageCode);
  }

  QB_VALUE(contentType, ContentType)
  QB_INTEGER(languageCode, LanguageCode)
  QB_PARAMS(QB_OPTIONAL(contentType, "content_type"), QB_OPTIONAL(languageCode, "language_code"))

  QB_MODEL_LIST(QBAPICmsArticle, articles, Articles)
  QB_RESULTS(QB_OPTIONAL(articles, "articles"))
};

}  // namespace qb
