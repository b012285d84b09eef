#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::DeviceInfoModel)
