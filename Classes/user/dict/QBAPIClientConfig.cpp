#include <QBComponentAPI/user/dict/QBAPIClientConfig.hpp>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/QBAPIAutoUpdate.hpp>
#include <QBComponentAPI/user/dict/QBAPILegalConfig.hpp>

QB_DICT_MODEL_DEFINE(qb::QBAPIClientConfig)
