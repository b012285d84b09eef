#include "user/dict/QBUserUpdateUserConversionMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserConversionMessage)
