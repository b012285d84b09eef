#include <QBComponentAPI/user/typed/AutoUpdateModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::AutoUpdateModel)
