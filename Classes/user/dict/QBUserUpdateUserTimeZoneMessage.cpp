#include "user/dict/QBUserUpdateUserTimeZoneMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserTimeZoneMessage)
