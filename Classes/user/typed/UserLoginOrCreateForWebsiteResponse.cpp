#include <QBComponentAPI/user/typed/UserLoginOrCreateForWebsiteResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserLoginOrCreateForWebsiteResponse)
