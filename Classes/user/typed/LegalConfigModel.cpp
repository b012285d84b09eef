#include "user/typed/LegalConfigModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::LegalConfigModel)
