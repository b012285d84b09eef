#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// Advertising identifiers of an iOS device.
struct IosDeviceDataModel {
  std::optional<std::string> idfa = std::nullopt;
  std::optional<std::string> idfv = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("idfa", &IosDeviceDataModel::idfa), qb::key("idfv", &IosDeviceDataModel::idfv));
  bool operator==(const IosDeviceDataModel&) const = default;
};
static_assert(APIModel<IosDeviceDataModel>);

}  // namespace qb
