#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsName;
class QBAPIItemImage;

/// One item of the collection in full: the simple item's fields and the identification result, the
/// candidate content names and their scores index for index (an empty list of names is a valid result).
/// This face has no disease id for a detailed item: "disease_uid" is neither read nor written.
class QBAPIItemDetail final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIItemDetail, "ItemDetail")
  QB_VALUE(itemId, ItemId)
  QB_MODEL(QBAPIItemImage, itemImage, ItemImage)
  QB_VALUE(shootAt, ShootAt)
  QB_VALUE(name, Name)
  QB_VALUE(cmsNameUid, CmsNameUid)
  QB_VALUE(latinName, LatinName)
  QB_VALUE(customName, CustomName)
  QB_VALUE(customNote, CustomNote)
  QB_VALUE(properties, Properties)
  QB_VALUE(cmsCacheBusinessFields, CmsCacheBusinessFields)
  QB_VALUE(lng, Lng)
  QB_VALUE(lat, Lat)
  QB_MODEL_LIST(QBAPICmsName, cmsNames, CmsNames)
  QB_LIST(probabilities, Probabilities)
  QB_FIELDS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(itemImage, "item_image"), QB_REQUIRED(shootAt, "shoot_at"),
            QB_REQUIRED(name, "name"), QB_OPTIONAL(cmsNameUid, "cms_name_uid"), QB_OPTIONAL(latinName, "latin_name"),
            QB_OPTIONAL(customName, "custom_name"), QB_OPTIONAL(customNote, "custom_note"),
            QB_OPTIONAL(properties, "properties"), QB_OPTIONAL(cmsCacheBusinessFields, "cms_cache_business_fields"),
            QB_OPTIONAL(lng, "lng"), QB_OPTIONAL(lat, "lat"), QB_REQUIRED(cmsNames, "cms_names"),
            QB_REQUIRED(probabilities, "probabilities"))
};

}  // namespace qb
