#pragma once

#include <QBComponentAPI/cms/typed/CmsNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_cms_name.
struct CmsGetCmsNameResponse {
  CmsNameModel cmsName;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("cms_name", &CmsGetCmsNameResponse::cmsName));
  QB_TYPED_RESPONSE(CmsGetCmsNameResponse)
  bool operator==(const CmsGetCmsNameResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetCmsNameResponse>);

}  // namespace qb
