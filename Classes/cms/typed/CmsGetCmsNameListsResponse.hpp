#pragma once

#include <QBComponentAPI/cms/typed/CmsNameListModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_cms_name_lists.
struct CmsGetCmsNameListsResponse {
  std::vector<CmsNameListModel> cmsNameLists;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("cms_name_lists", &CmsGetCmsNameListsResponse::cmsNameLists));
  QB_TYPED_RESPONSE(CmsGetCmsNameListsResponse)
  bool operator==(const CmsGetCmsNameListsResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetCmsNameListsResponse>);

}  // namespace qb
