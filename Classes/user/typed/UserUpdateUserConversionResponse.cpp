#include "user/typed/UserUpdateUserConversionResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateUserConversionResponse)
