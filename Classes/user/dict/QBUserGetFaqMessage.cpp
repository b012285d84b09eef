#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIFaq.hpp>

QB_DICT_MESSAGE_DEFINE(qb::QBUserGetFaqMessage)
