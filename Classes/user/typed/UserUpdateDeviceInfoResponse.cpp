#include "user/typed/UserUpdateDeviceInfoResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateDeviceInfoResponse)
