#include "user/typed/UserGetFaqResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserGetFaqResponse)
