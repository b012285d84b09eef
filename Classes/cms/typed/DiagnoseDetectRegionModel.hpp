#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One detected region of a photo with its scores.
struct DiagnoseDetectRegionModel {
  std::vector<double> region;
  double detectionScore;
  double strategyScore;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("region", &DiagnoseDetectRegionModel::region),
                     qb::key("detection_score", &DiagnoseDetectRegionModel::detectionScore),
                     qb::key("strategy_score", &DiagnoseDetectRegionModel::strategyScore));
  bool operator==(const DiagnoseDetectRegionModel&) const = default;
};
static_assert(APIModel<DiagnoseDetectRegionModel>);

}  // namespace qb
