#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsImage;
class QBAPITaxonomyName;

/// A compact reference to a content name, carried as a tag value (`type` is the tag-value type). Unlike
/// the full content name it requires its main image.
class QBAPICmsMain final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsMain, "CmsMain")
  QB_INTEGER(type, Type)
  QB_VALUE(uid, Uid)
  QB_MODEL(QBAPITaxonomyName, name, Name)
  QB_MODEL(QBAPITaxonomyName, taxonomyParent, TaxonomyParent)
  QB_MODEL(QBAPITaxonomyName, taxonomyFamilyParent, TaxonomyFamilyParent)
  QB_MODEL(QBAPICmsImage, mainImage, MainImage)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_REQUIRED(uid, "uid"), QB_REQUIRED(name, "name"),
            QB_OPTIONAL(taxonomyParent, "taxonomy_parent"), QB_OPTIONAL(taxonomyFamilyParent, "taxonomy_family_parent"),
            QB_REQUIRED(mainImage, "main_image"))
};

}  // namespace qb
