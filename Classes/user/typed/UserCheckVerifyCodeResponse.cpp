#include <QBComponentAPI/user/typed/UserCheckVerifyCodeResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserCheckVerifyCodeResponse)
