#include <QBComponentAPI/user/typed/UserInitialiseResponse.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserInitialiseResponse)
