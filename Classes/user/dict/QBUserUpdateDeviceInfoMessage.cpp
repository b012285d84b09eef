#include "user/dict/QBUserUpdateDeviceInfoMessage.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIDeviceInfo.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateDeviceInfoMessage)
