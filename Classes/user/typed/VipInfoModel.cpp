#include "user/typed/VipInfoModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::VipInfoModel)
