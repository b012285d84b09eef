#include "user/typed/ThirdPartyUserInfoModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::ThirdPartyUserInfoModel)
