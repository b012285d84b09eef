#include "user/dict/QBUserUpdateAdditionalDataMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateAdditionalDataMessage)
