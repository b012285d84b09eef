#include <QBComponentAPI/user/typed/UserResetPasswordAndLoginResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserResetPasswordAndLoginResponse)
