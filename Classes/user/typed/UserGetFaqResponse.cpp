#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserGetFaqResponse)
