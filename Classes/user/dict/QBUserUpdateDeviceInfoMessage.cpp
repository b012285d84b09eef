#include <QBComponentAPI/user/dict/QBUserUpdateDeviceInfoMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateDeviceInfoMessage)
