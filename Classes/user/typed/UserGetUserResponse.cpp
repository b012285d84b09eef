#include "user/typed/UserGetUserResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserGetUserResponse)
