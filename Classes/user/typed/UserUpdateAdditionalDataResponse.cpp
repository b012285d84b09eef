#include <QBComponentAPI/user/typed/UserUpdateAdditionalDataResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateAdditionalDataResponse)
