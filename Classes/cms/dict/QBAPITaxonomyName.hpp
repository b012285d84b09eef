#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// One rank of a taxonomy: a name itself, its parent, its family, or an entry of its taxonomies. `type`
/// is the taxonomy type. Only the preferred and latin names are required here, so an entry without
/// "uid" is accepted.
class QBAPITaxonomyName final : public QBAPIModel {
  QB_DICT_MODEL(QBAPITaxonomyName, "TaxonomyName")
  QB_VALUE(uid, Uid)
  QB_INTEGER(type, Type)
  QB_VALUE(taxonomyTypeName, TaxonomyTypeName)
  QB_VALUE(preferredName, PreferredName)
  QB_VALUE(latinName, LatinName)
  QB_LIST(commonNames, CommonNames)
  QB_FIELDS(QB_OPTIONAL(uid, "uid"), QB_OPTIONAL(type, "type"), QB_OPTIONAL(taxonomyTypeName, "taxonomy_type_name"),
            QB_REQUIRED(preferredName, "preferred_name"), QB_REQUIRED(latinName, "latin_name"),
            QB_OPTIONAL(commonNames, "common_names"))
};

}  // namespace qb
