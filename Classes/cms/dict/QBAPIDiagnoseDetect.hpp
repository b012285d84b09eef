#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIDiagnoseDetectRegion;

/// The regions of a photo in which a disease was detected.
class QBAPIDiagnoseDetect final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIDiagnoseDetect, "DiagnoseDetect")
  QB_MODEL_LIST(QBAPIDiagnoseDetectRegion, regions, Regions)
  QB_FIELDS(QB_REQUIRED(regions, "regions"))
};

}  // namespace qb
