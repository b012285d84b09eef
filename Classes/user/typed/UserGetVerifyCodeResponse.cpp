#include <QBComponentAPI/user/typed/UserGetVerifyCodeResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserGetVerifyCodeResponse)
