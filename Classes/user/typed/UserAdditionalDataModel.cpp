#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::UserAdditionalDataModel)
