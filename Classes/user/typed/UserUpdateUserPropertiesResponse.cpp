#include <QBComponentAPI/user/typed/UserUpdateUserPropertiesResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserUpdateUserPropertiesResponse)
