#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The advertising identifier of an Android device.
struct AndroidDeviceDataModel {
  std::optional<std::string> gaid = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("gaid", &AndroidDeviceDataModel::gaid));
  bool operator==(const AndroidDeviceDataModel&) const = default;
};
static_assert(APIModel<AndroidDeviceDataModel>);

}  // namespace qb
