#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The advertising identifier of an Android device.
class QBAPIAndroidDeviceData final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIAndroidDeviceData, "AndroidDeviceData")
  QB_VALUE(gaid, Gaid)
  QB_FIELDS(QB_OPTIONAL(gaid, "gaid"))
};

}  // namespace qb
