#include "user/typed/UserUpdateUserPropertiesResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserUpdateUserPropertiesResponse)
