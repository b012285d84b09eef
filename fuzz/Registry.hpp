// The records the fuzz targets exercise, one list per face. A new record joins by adding it here; the
// first input byte picks the record, so no new target is needed.
#pragma once

#include <cstddef>
#include <cstdint>
#include <tuple>

#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

namespace qb::fuzz {

template <class... T>
struct TypeList {
  static constexpr std::size_t size = sizeof...(T);
};

using DictModels =
    TypeList<QBAPIUser, QBAPIUserAdditionalData, QBAPILoginInfo, QBAPILoginMethod, QBAPIThirdPartyUserInfo,
             QBAPIVipInfo, QBAPIDeviceInfo, QBAPIDeviceDetailInfo, QBAPIIosDeviceData, QBAPIAndroidDeviceData,
             QBAPIClientConfig, QBAPIAutoUpdate, QBAPILegalConfig, QBAPIFaq>;

using DictMessages =
    TypeList<QBUserInitialiseMessage, QBUserLoginOrCreateMessage, QBUserGetVerifyCodeMessage,
             QBUserCheckVerifyCodeMessage, QBUserResetPasswordAndLoginMessage, QBUserDeleteAccountMessage,
             QBUserGetUserMessage, QBUserUpdateMessage, QBUserUpdateAdditionalDataMessage,
             QBUserUpdateDeviceInfoMessage, QBUserUpdateUserConversionMessage, QBUserUpdateUserDevicePushInfoMessage,
             QBUserUpdateUserPropertiesMessage, QBUserUpdateUserTimeZoneMessage, QBUserGetConfigMessage,
             QBUserGetFaqMessage>;

using TypedRecords =
    TypeList<UserModel, UserAdditionalDataModel, LoginInfoModel, LoginMethodModel, ThirdPartyUserInfoModel,
             VipInfoModel, DeviceInfoModel, DeviceDetailInfoModel, IosDeviceDataModel, AndroidDeviceDataModel,
             ClientConfigModel, AutoUpdateModel, LegalConfigModel, FaqModel, UserInitialiseResponse,
             UserLoginOrCreateResponse, UserLoginOrCreateForWebsiteResponse, UserAppleLoginCallBackResponse,
             UserGetVerifyCodeResponse, UserResetPasswordAndLoginResponse, UserGetUserResponse, UserUpdateResponse,
             UserGetConfigResponse, UserGetFaqResponse>;

// Calls f.template operator()<T>() for the type at `selector` modulo the list's size.
template <class... T, class F>
void dispatch(TypeList<T...>, std::uint8_t selector, F&& f) {
  std::size_t index = 0;
  const std::size_t wanted = selector % sizeof...(T);
  (void)((index++ == wanted ? (f.template operator()<T>(), true) : false) || ...);
}

}  // namespace qb::fuzz
