#include <QBComponentAPI/user/dict/QBUserUpdateAdditionalDataMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserUpdateAdditionalDataMessage)
