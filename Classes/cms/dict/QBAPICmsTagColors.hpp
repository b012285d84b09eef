#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// A colour tag value: the tag-value type and the colour, both integers.
class QBAPICmsTagColors final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTagColors, "CmsTagColors")
  QB_INTEGER(type, Type)
  QB_INTEGER(color, Color)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_OPTIONAL(color, "color"))
};

}  // namespace qb
