#include "user/typed/UserAppleLoginCallBackResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserAppleLoginCallBackResponse)
