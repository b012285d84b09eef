#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/typed/CmsFaqCategoryModel.hpp>

namespace qb {

/// The reply of get_faq_from_cms.
struct SupportGetFaqFromCmsResponse {
  std::vector<CmsFaqCategoryModel> cmsFaqCategoryList;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("cms_faq_category_list", &SupportGetFaqFromCmsResponse::cmsFaqCategoryList));
  QB_TYPED_RESPONSE(SupportGetFaqFromCmsResponse)
  bool operator==(const SupportGetFaqFromCmsResponse&) const = default;
};
static_assert(APIDecodableResponse<SupportGetFaqFromCmsResponse>);

}  // namespace qb
