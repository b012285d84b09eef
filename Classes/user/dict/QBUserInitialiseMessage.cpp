#include "user/dict/QBUserInitialiseMessage.hpp"

#include "frame/detail/DictEngine.hpp"
#include "user/dict/QBAPIClientConfig.hpp"
#include "user/dict/QBAPIDeviceInfo.hpp"
#include "user/dict/QBAPILoginInfo.hpp"
#include "user/dict/QBAPIUser.hpp"
#include "user/dict/QBAPIUserAdditionalData.hpp"

QB_DICT_MESSAGE_DEFINE(qb::QBUserInitialiseMessage)
