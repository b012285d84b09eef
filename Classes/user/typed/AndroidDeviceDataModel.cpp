#include "user/typed/AndroidDeviceDataModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::AndroidDeviceDataModel)
