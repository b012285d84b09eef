#include <QBComponentAPI/user/typed/VipInfoModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::VipInfoModel)
