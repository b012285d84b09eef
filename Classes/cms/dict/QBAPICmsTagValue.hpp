#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The tag-value type alone, for reading a tag value's kind before choosing the class to read it with.
class QBAPICmsTagValue final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTagValue, "CmsTagValue")
  QB_INTEGER(type, Type)
  QB_FIELDS(QB_OPTIONAL(type, "type"))
};

}  // namespace qb
