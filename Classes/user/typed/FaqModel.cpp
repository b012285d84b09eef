#include <QBComponentAPI/user/typed/FaqModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::FaqModel)
