#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// change_item_cms_name: points an item at another content name (its id and its display name).
class QBItemChangeItemCmsNameMessage final : public DictMessage<QBItemChangeItemCmsNameMessage> {
  QB_DICT_MESSAGE(QBItemChangeItemCmsNameMessage, "ChangeItemCmsName", item::kChangeItemCmsName)
  static std::shared_ptr<QBItemChangeItemCmsNameMessage> initWithData(std::optional<JsonValue> itemId,
                                                                      std::optional<JsonValue> cmsNameUid,
                                                                      std::optional<JsonValue> cmsNameName) {
    return make<&Self::itemId_, &Self::cmsNameUid_, &Self::cmsNameName_>(std::move(itemId), std::move(cmsNameUid),
                                                                         std::move(cmsNameName));
  }

  QB_VALUE(itemId, ItemId)
  QB_VALUE(cmsNameUid, CmsNameUid)
  QB_VALUE(cmsNameName, CmsNameName)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(cmsNameUid, "cms_name_uid"),
            QB_REQUIRED(cmsNameName, "cms_name_name"))
  QB_RESULTS()
};

}  // namespace qb
