// The support domain's Dictionary-face operations, defined from its catalogue.
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/support/dict/SupportDict.hpp>

QB_DICT_DEFINE_DOMAIN(support, QB_SUPPORT_ENDPOINTS, QB_SUPPORT_RECORDS)
