#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemChangeItemCmsNameResponse.hpp>

namespace qb {

/// change_item_cms_name: points an item at another content name (its id and its display name).
struct ItemChangeItemCmsNameRequest {
  std::int64_t itemId;
  std::string cmsNameUid;
  std::string cmsNameName;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("item_id", &ItemChangeItemCmsNameRequest::itemId),
                     qb::key("cms_name_uid", &ItemChangeItemCmsNameRequest::cmsNameUid),
                     qb::key("cms_name_name", &ItemChangeItemCmsNameRequest::cmsNameName));
  QB_TYPED_REQUEST(item::kChangeItemCmsName, ItemChangeItemCmsNameResponse)
  bool operator==(const ItemChangeItemCmsNameRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemChangeItemCmsNameRequest>);

}  // namespace qb
