#include <QBComponentAPI/user/typed/UserUpdateUserConversionResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateUserConversionResponse)
