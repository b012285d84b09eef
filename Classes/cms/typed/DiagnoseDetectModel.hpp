#pragma once

#include <QBComponentAPI/cms/typed/DiagnoseDetectRegionModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The regions of a photo in which a disease was detected.
struct DiagnoseDetectModel {
  std::vector<DiagnoseDetectRegionModel> regions;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("regions", &DiagnoseDetectModel::regions));
  bool operator==(const DiagnoseDetectModel&) const = default;
};
static_assert(APIModel<DiagnoseDetectModel>);

}  // namespace qb
