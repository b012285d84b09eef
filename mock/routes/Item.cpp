// The mock service's routes of the collection of identified items.
#include <QBComponentAPI/item/Item.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(item)
