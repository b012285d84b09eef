#include "user/typed/UserInitialiseResponse.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserInitialiseResponse)
