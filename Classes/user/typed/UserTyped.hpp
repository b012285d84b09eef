// Every Typed-face record of the account domain.
#pragma once

#include <QBComponentAPI/user/typed/AndroidDeviceDataModel.hpp>
#include <QBComponentAPI/user/typed/AutoUpdateModel.hpp>
#include <QBComponentAPI/user/typed/ClientConfigModel.hpp>
#include <QBComponentAPI/user/typed/DeviceDetailInfoModel.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/FaqModel.hpp>
#include <QBComponentAPI/user/typed/IosDeviceDataModel.hpp>
#include <QBComponentAPI/user/typed/LegalConfigModel.hpp>
#include <QBComponentAPI/user/typed/LoginInfoModel.hpp>
#include <QBComponentAPI/user/typed/LoginMethodModel.hpp>
#include <QBComponentAPI/user/typed/ThirdPartyUserInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserAppleLoginCallBackRequest.hpp>
#include <QBComponentAPI/user/typed/UserAppleLoginCallBackResponse.hpp>
#include <QBComponentAPI/user/typed/UserCheckVerifyCodeRequest.hpp>
#include <QBComponentAPI/user/typed/UserCheckVerifyCodeResponse.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountRequest.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetUserRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetUserResponse.hpp>
#include <QBComponentAPI/user/typed/UserGetVerifyCodeRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetVerifyCodeResponse.hpp>
#include <QBComponentAPI/user/typed/UserInitialiseRequest.hpp>
#include <QBComponentAPI/user/typed/UserInitialiseResponse.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateForWebsiteRequest.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateForWebsiteResponse.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateRequest.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateResponse.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>
#include <QBComponentAPI/user/typed/UserResetPasswordAndLoginRequest.hpp>
#include <QBComponentAPI/user/typed/UserResetPasswordAndLoginResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateAdditionalDataRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateAdditionalDataResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateDeviceInfoRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateDeviceInfoResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserConversionRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserConversionResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserDevicePushInfoRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserDevicePushInfoResponse.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserPropertiesRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserPropertiesResponse.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>

#include <QBComponentAPI/frame/CodecInstances.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_USER_ENDPOINTS, QB_USER_RECORDS)
