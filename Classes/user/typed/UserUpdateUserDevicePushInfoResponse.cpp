#include <QBComponentAPI/user/typed/UserUpdateUserDevicePushInfoResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateUserDevicePushInfoResponse)
