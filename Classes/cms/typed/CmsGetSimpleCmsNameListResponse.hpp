#pragma once

#include <QBComponentAPI/cms/typed/SimpleCmsNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_simple_cms_name_list, under the same key as get_cms_name_list's.
struct CmsGetSimpleCmsNameListResponse {
  std::vector<SimpleCmsNameModel> cmsNameList;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("cms_name_list", &CmsGetSimpleCmsNameListResponse::cmsNameList));
  QB_TYPED_RESPONSE(CmsGetSimpleCmsNameListResponse)
  bool operator==(const CmsGetSimpleCmsNameListResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetSimpleCmsNameListResponse>);

}  // namespace qb
