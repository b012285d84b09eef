#include <QBComponentAPI/user/typed/LoginMethodModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::LoginMethodModel)
