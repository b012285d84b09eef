#include "user/typed/LoginInfoModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::LoginInfoModel)
