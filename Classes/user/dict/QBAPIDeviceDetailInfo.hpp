#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIAndroidDeviceData;
class QBAPIIosDeviceData;

/// Attribution identifiers and the app's locale and version.
class QBAPIDeviceDetailInfo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIDeviceDetailInfo, "DeviceDetailInfo")
  QB_VALUE(appsFlyerId, AppsFlyerId)
  QB_VALUE(appsFlyerAdvertisingId, AppsFlyerAdvertisingId)
  QB_VALUE(appsFlyerAtt, AppsFlyerAtt)
  QB_VALUE(adjustId, AdjustId)
  QB_MODEL(QBAPIIosDeviceData, iosDeviceData, IosDeviceData)
  QB_MODEL(QBAPIAndroidDeviceData, androidDeviceData, AndroidDeviceData)
  QB_VALUE(countryCode, CountryCode)
  QB_VALUE(language, Language)
  QB_VALUE(appVersion, AppVersion)
  QB_VALUE(deviceOs, DeviceOs)
  QB_VALUE(deviceModel, DeviceModel)
  QB_FIELDS(QB_REQUIRED(appsFlyerId, "apps_flyer_id"), QB_OPTIONAL(appsFlyerAdvertisingId, "apps_flyer_advertising_id"),
            QB_OPTIONAL(appsFlyerAtt, "apps_flyer_att"), QB_OPTIONAL(adjustId, "adjust_id"),
            QB_OPTIONAL(iosDeviceData, "ios_device_data"), QB_OPTIONAL(androidDeviceData, "android_device_data"),
            QB_REQUIRED(countryCode, "country_code"), QB_REQUIRED(language, "language"),
            QB_REQUIRED(appVersion, "app_version"), QB_OPTIONAL(deviceOs, "device_os"),
            QB_OPTIONAL(deviceModel, "device_model"))
};

}  // namespace qb
