#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// One detected region with its scores; the coordinates and scores are the number objects as the reply
/// gave them.
class QBAPIDiagnoseDetectRegion final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIDiagnoseDetectRegion, "DiagnoseDetectRegion")
  QB_LIST(region, Region)
  QB_VALUE(detectionScore, DetectionScore)
  QB_VALUE(strategyScore, StrategyScore)
  QB_FIELDS(QB_REQUIRED(region, "region"), QB_REQUIRED(detectionScore, "detection_score"),
            QB_REQUIRED(strategyScore, "strategy_score"))
};

}  // namespace qb
