#include "user/typed/IosDeviceDataModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::IosDeviceDataModel)
