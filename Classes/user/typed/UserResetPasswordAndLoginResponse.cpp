#include "user/typed/UserResetPasswordAndLoginResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserResetPasswordAndLoginResponse)
