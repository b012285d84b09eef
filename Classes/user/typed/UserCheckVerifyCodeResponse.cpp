#include "user/typed/UserCheckVerifyCodeResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserCheckVerifyCodeResponse)
