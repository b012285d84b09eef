#include <QBComponentAPI/user/typed/UserLoginOrCreateResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserLoginOrCreateResponse)
