#include "user/dict/QBUserUpdateUserDevicePushInfoMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserDevicePushInfoMessage)
