#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// A text tag value, optionally labelled.
class QBAPICmsTagString final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTagString, "CmsTagString")
  QB_INTEGER(type, Type)
  QB_VALUE(value, Value)
  QB_VALUE(key, Key)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_REQUIRED(value, "value"), QB_OPTIONAL(key, "key"))
};

}  // namespace qb
