#include <QBComponentAPI/user/typed/ClientConfigModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::ClientConfigModel)
