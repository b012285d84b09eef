#include "user/typed/UserUpdateUserDevicePushInfoResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateUserDevicePushInfoResponse)
