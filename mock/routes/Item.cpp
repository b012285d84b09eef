// The mock service's routes of the collection of identified items.
#include <QBComponentAPI/item/dict/ItemDict.hpp>
#include <QBComponentAPI/item/typed/ItemTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(item)
