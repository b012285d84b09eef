#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// Whether a newer app version exists and whether it must be installed.
class QBAPIAutoUpdate final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIAutoUpdate, "AutoUpdate")
  QB_VALUE(hasUpdate, HasUpdate)
  QB_VALUE(forceUpdate, ForceUpdate)
  QB_FIELDS(QB_REQUIRED(hasUpdate, "has_update"), QB_REQUIRED(forceUpdate, "force_update"))
};

}  // namespace qb
