#include <QBComponentAPI/user/typed/UserDeleteAccountResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserDeleteAccountResponse)
