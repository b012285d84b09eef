#pragma once

#include <QBComponentAPI/cms/typed/SimpleCmsItemModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of list_simple_items.
struct CmsListSimpleItemsResponse {
  std::vector<SimpleCmsItemModel> items;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("items", &CmsListSimpleItemsResponse::items));
  QB_TYPED_RESPONSE(CmsListSimpleItemsResponse)
  bool operator==(const CmsListSimpleItemsResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsListSimpleItemsResponse>);

}  // namespace qb
