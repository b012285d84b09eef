#include <QBComponentAPI/user/typed/AndroidDeviceDataModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::AndroidDeviceDataModel)
