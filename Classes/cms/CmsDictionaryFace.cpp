// The content catalogue's Dictionary-face operations, defined from its catalogue.
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/frame/detail/DictEngine.hpp>

QB_DICT_DEFINE_DOMAIN(cms, QB_CMS_ENDPOINTS, QB_CMS_RECORDS)
