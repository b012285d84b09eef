#include "user/typed/DeviceDetailInfoModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::DeviceDetailInfoModel)
