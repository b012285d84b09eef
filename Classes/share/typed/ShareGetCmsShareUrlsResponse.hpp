#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/share/typed/ShareUrlModel.hpp>

namespace qb {

/// The reply of get_cms_share_urls.
struct ShareGetCmsShareUrlsResponse {
  std::vector<ShareUrlModel> shareUrls;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("share_urls", &ShareGetCmsShareUrlsResponse::shareUrls));
  QB_TYPED_RESPONSE(ShareGetCmsShareUrlsResponse)
  bool operator==(const ShareGetCmsShareUrlsResponse&) const = default;
};
static_assert(APIDecodableResponse<ShareGetCmsShareUrlsResponse>);

}  // namespace qb
