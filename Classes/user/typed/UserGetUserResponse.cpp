#include <QBComponentAPI/user/typed/UserGetUserResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserGetUserResponse)
