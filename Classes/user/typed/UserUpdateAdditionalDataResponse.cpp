#include "user/typed/UserUpdateAdditionalDataResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateAdditionalDataResponse)
