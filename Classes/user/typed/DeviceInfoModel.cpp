#include "user/typed/DeviceInfoModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::DeviceInfoModel)
