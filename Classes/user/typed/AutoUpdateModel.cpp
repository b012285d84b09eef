#include "user/typed/AutoUpdateModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::AutoUpdateModel)
