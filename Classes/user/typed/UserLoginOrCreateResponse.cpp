#include "user/typed/UserLoginOrCreateResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserLoginOrCreateResponse)
