#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/typed/CmsFaqCategoryModel.hpp>

namespace qb {

/// The reply of get_popular_faq_from_cms.
struct SupportGetPopularFaqFromCmsResponse {
  std::vector<CmsFaqCategoryModel> cmsFaqCategoryList;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("cms_faq_category_list", &SupportGetPopularFaqFromCmsResponse::cmsFaqCategoryList));
  QB_TYPED_RESPONSE(SupportGetPopularFaqFromCmsResponse)
  bool operator==(const SupportGetPopularFaqFromCmsResponse&) const = default;
};
static_assert(APIDecodableResponse<SupportGetPopularFaqFromCmsResponse>);

}  // namespace qb
