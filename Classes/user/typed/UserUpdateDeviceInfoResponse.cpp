#include <QBComponentAPI/user/typed/UserUpdateDeviceInfoResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateDeviceInfoResponse)
