#include "user/typed/LoginMethodModel.hpp"

#include "frame/detail/JSONDecoderImpl.hpp"

QB_TYPED_DEFINE(qb::LoginMethodModel)
