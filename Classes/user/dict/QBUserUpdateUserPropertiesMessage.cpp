#include "user/dict/QBUserUpdateUserPropertiesMessage.hpp"

#include "frame/detail/DictEngine.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateUserPropertiesMessage)
