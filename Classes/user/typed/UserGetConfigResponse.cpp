#include "user/typed/UserGetConfigResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserGetConfigResponse)
