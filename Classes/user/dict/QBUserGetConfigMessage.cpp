#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIClientConfig.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetConfigMessage)
