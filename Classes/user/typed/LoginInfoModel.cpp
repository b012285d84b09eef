#include <QBComponentAPI/user/typed/LoginInfoModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::LoginInfoModel)
