#include <QBComponentAPI/user/typed/UserAppleLoginCallBackResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserAppleLoginCallBackResponse)
