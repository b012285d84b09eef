#pragma once

#include <QBComponentAPI/cms/typed/CmsNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_cms_name_list.
struct CmsGetCmsNameListResponse {
  std::vector<CmsNameModel> cmsNameList;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("cms_name_list", &CmsGetCmsNameListResponse::cmsNameList));
  QB_TYPED_RESPONSE(CmsGetCmsNameListResponse)
  bool operator==(const CmsGetCmsNameListResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetCmsNameListResponse>);

}  // namespace qb
