// The item collection's Dictionary-face operations, defined from its catalogue.
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/item/dict/ItemDict.hpp>

QB_DICT_DEFINE_DOMAIN(item, QB_ITEM_ENDPOINTS, QB_ITEM_RECORDS)
