#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// A taxonomy name carried as a tag value. `type` is the tag-value type and `taxonomyType` the taxonomy
/// type (which a plain taxonomy name keeps under "type").
class QBAPICmsTaxonomyName final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTaxonomyName, "CmsTaxonomyName")
  QB_INTEGER(type, Type)
  QB_INTEGER(taxonomyType, TaxonomyType)
  QB_VALUE(taxonomyTypeName, TaxonomyTypeName)
  QB_VALUE(preferredName, PreferredName)
  QB_VALUE(latinName, LatinName)
  QB_LIST(commonNames, CommonNames)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_OPTIONAL(taxonomyType, "taxonomy_type"),
            QB_REQUIRED(taxonomyTypeName, "taxonomy_type_name"), QB_REQUIRED(preferredName, "preferred_name"),
            QB_REQUIRED(latinName, "latin_name"), QB_OPTIONAL(commonNames, "common_names"))
};

}  // namespace qb
