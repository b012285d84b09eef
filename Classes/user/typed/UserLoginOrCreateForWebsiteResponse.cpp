#include "user/typed/UserLoginOrCreateForWebsiteResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserLoginOrCreateForWebsiteResponse)
