#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserGetConfigResponse)
