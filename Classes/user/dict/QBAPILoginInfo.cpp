#include <QBComponentAPI/user/dict/QBAPILoginInfo.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIThirdPartyUserInfo.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPILoginInfo)
