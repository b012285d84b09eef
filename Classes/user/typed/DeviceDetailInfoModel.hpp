#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/AndroidDeviceDataModel.hpp>
#include <QBComponentAPI/user/typed/IosDeviceDataModel.hpp>

namespace qb {

/// Attribution identifiers and the app's locale and version.
struct DeviceDetailInfoModel {
  std::string appsFlyerId;
  std::optional<std::string> appsFlyerAdvertisingId = std::nullopt;
  std::optional<std::int64_t> appsFlyerAtt = std::nullopt;
  std::optional<std::string> adjustId = std::nullopt;
  std::optional<IosDeviceDataModel> iosDeviceData = std::nullopt;
  std::optional<AndroidDeviceDataModel> androidDeviceData = std::nullopt;
  std::string countryCode;
  std::string language;
  std::string appVersion;
  std::optional<std::string> deviceOs = std::nullopt;
  std::optional<std::string> deviceModel = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("apps_flyer_id", &DeviceDetailInfoModel::appsFlyerId),
      qb::key("apps_flyer_advertising_id", &DeviceDetailInfoModel::appsFlyerAdvertisingId),
      qb::key("apps_flyer_att", &DeviceDetailInfoModel::appsFlyerAtt),
      qb::key("adjust_id", &DeviceDetailInfoModel::adjustId),
      qb::key("ios_device_data", &DeviceDetailInfoModel::iosDeviceData),
      qb::key("android_device_data", &DeviceDetailInfoModel::androidDeviceData),
      qb::key("country_code", &DeviceDetailInfoModel::countryCode),
      qb::key("language", &DeviceDetailInfoModel::language), qb::key("app_version", &DeviceDetailInfoModel::appVersion),
      qb::key("device_os", &DeviceDetailInfoModel::deviceOs),
      qb::key("device_model", &DeviceDetailInfoModel::deviceModel));
  bool operator==(const DeviceDetailInfoModel&) const = default;
};
static_assert(APIModel<DeviceDetailInfoModel>);

}  // namespace qb
