#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIItemImage;

/// One entry of the user's collection as the collection lists show it. shootAt is the number the reply
/// gave (its unit is the server's); properties and cmsCacheBusinessFields are opaque texts.
class QBAPISimpleItem final : public QBAPIModel {
  QB_DICT_MODEL(QBAPISimpleItem, "SimpleItem")
  QB_VALUE(itemId, ItemId)
  QB_MODEL(QBAPIItemImage, itemImage, ItemImage)
  QB_VALUE(shootAt, ShootAt)
  QB_VALUE(name, Name)
  QB_VALUE(cmsNameUid, CmsNameUid)
  QB_VALUE(diseaseUid, DiseaseUid)
  QB_VALUE(latinName, LatinName)
  QB_VALUE(customName, CustomName)
  QB_VALUE(customNote, CustomNote)
  QB_VALUE(properties, Properties)
  QB_VALUE(cmsCacheBusinessFields, CmsCacheBusinessFields)
  QB_VALUE(lng, Lng)
  QB_VALUE(lat, Lat)
  QB_FIELDS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(itemImage, "item_image"), QB_REQUIRED(shootAt, "shoot_at"),
            QB_REQUIRED(name, "name"), QB_OPTIONAL(cmsNameUid, "cms_name_uid"), QB_OPTIONAL(diseaseUid, "disease_uid"),
            QB_OPTIONAL(latinName, "latin_name"), QB_OPTIONAL(customName, "custom_name"),
            QB_OPTIONAL(customNote, "custom_note"), QB_OPTIONAL(properties, "properties"),
            QB_OPTIONAL(cmsCacheBusinessFields, "cms_cache_business_fields"), QB_OPTIONAL(lng, "lng"),
            QB_OPTIONAL(lat, "lat"))
};

}  // namespace qb
