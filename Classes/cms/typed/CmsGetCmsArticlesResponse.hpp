#pragma once

#include <QBComponentAPI/cms/typed/CmsArticleModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of articles.
struct CmsGetCmsArticlesResponse {
  std::vector<CmsArticleModel> articles;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("articles", &CmsGetCmsArticlesResponse::articles));
  QB_TYPED_RESPONSE(CmsGetCmsArticlesResponse)
  bool operator==(const CmsGetCmsArticlesResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetCmsArticlesResponse>);

}  // namespace qb
