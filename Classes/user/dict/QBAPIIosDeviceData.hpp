#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// Advertising identifiers of an iOS device.
class QBAPIIosDeviceData final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIIosDeviceData, "IosDeviceData")
  QB_VALUE(idfa, Idfa)
  QB_VALUE(idfv, Idfv)
  QB_FIELDS(QB_OPTIONAL(idfa, "idfa"), QB_OPTIONAL(idfv, "idfv"))
};

}  // namespace qb
