#include "user/typed/UserGetVerifyCodeResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserGetVerifyCodeResponse)
