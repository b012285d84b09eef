#include <QBComponentAPI/user/typed/LegalConfigModel.hpp>

#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

QB_TYPED_DEFINE(qb::LegalConfigModel)
