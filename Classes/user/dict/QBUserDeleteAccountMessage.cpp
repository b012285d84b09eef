#include <QBComponentAPI/user/dict/QBUserDeleteAccountMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserDeleteAccountMessage)
