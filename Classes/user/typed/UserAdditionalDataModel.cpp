#include "user/typed/UserAdditionalDataModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::UserAdditionalDataModel)
