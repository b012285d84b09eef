#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/DeviceDetailInfoModel.hpp>

namespace qb {

/// The device the app runs on.
struct DeviceInfoModel {
  DeviceType deviceType;
  std::string deviceToken;
  std::optional<DeviceDetailInfoModel> deviceDetailInfo = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("device_type", &DeviceInfoModel::deviceType),
                                                    qb::key("device_token", &DeviceInfoModel::deviceToken),
                                                    qb::key("device_detail_info", &DeviceInfoModel::deviceDetailInfo));
  bool operator==(const DeviceInfoModel&) const = default;
};
static_assert(APIModel<DeviceInfoModel>);

}  // namespace qb
