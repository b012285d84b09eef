#include <QBComponentAPI/user/dict/QBAPIThirdPartyUserInfo.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIThirdPartyUserInfo)
