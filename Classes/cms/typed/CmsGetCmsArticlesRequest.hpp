#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsArticlesResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// articles: the articles of a content type (all of them when none is given) for a language.
struct CmsGetCmsArticlesRequest {
  std::optional<std::string> contentType = std::nullopt;
  LanguageCode languageCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("content_type", &CmsGetCmsArticlesRequest::contentType),
                                                    qb::key("language_code", &CmsGetCmsArticlesRequest::languageCode));
  QB_TYPED_REQUEST(cms::kArticles, CmsGetCmsArticlesResponse)
  bool operator==(const CmsGetCmsArticlesRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetCmsArticlesRequest>);

}  // namespace qb
