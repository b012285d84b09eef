#pragma once

#include <QBComponentAPI/cms/typed/SimpleCmsItemModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of get_name_list.
struct CmsGetNameListResponse {
  std::vector<SimpleCmsItemModel> items;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("items", &CmsGetNameListResponse::items));
  QB_TYPED_RESPONSE(CmsGetNameListResponse)
  bool operator==(const CmsGetNameListResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsGetNameListResponse>);

}  // namespace qb
