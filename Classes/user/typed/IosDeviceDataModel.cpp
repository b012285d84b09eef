#include <QBComponentAPI/user/typed/IosDeviceDataModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::IosDeviceDataModel)
