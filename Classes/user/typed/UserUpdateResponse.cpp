#include <QBComponentAPI/user/typed/UserUpdateResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateResponse)
