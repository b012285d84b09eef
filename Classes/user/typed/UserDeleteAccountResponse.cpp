#include "user/typed/UserDeleteAccountResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserDeleteAccountResponse)
