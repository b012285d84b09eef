#include <QBComponentAPI/user/dict/QBUserLoginOrCreateMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>
#include <QBComponentAPI/user/dict/QBAPILoginInfo.hpp>
#include <QBComponentAPI/user/dict/QBAPIUser.hpp>
#include <QBComponentAPI/user/dict/QBAPIUserAdditionalData.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserLoginOrCreateMessage)
