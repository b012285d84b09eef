#include "user/typed/ClientConfigModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::ClientConfigModel)
