#include <QBComponentAPI/user/typed/ThirdPartyUserInfoModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::ThirdPartyUserInfoModel)
