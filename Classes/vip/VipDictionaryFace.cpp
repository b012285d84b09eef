// The subscription domain's Dictionary-face operations, defined from its catalogue.
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/vip/dict/VipDict.hpp>

QB_DICT_DEFINE_DOMAIN(vip, QB_VIP_ENDPOINTS, QB_VIP_RECORDS)
