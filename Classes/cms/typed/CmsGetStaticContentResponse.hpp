#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_static_content.
struct CmsGetStaticContentResponse {
  std::string content;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("content", &CmsGetStaticContentResponse::content));
  QB_TYPED_RESPONSE(CmsGetStaticContentResponse)
  bool operator==(const CmsGetStaticContentResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetStaticContentResponse>);

}  // namespace qb
