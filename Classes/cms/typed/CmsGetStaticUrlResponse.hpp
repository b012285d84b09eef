#pragma once

#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_static_url.
struct CmsGetStaticUrlResponse {
  CmsStaticUrlModel cmsStaticUrl;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("cms_static_url", &CmsGetStaticUrlResponse::cmsStaticUrl));
  QB_TYPED_RESPONSE(CmsGetStaticUrlResponse)
  bool operator==(const CmsGetStaticUrlResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetStaticUrlResponse>);

}  // namespace qb
