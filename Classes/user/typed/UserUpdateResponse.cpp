#include "user/typed/UserUpdateResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateResponse)
