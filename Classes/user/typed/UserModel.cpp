#include <QBComponentAPI/user/typed/UserModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserModel)
