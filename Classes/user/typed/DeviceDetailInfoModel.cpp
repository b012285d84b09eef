#include <QBComponentAPI/user/typed/DeviceDetailInfoModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::DeviceDetailInfoModel)
