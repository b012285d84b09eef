// The mock service's routes of customer support.
#include <QBComponentAPI/support/dict/SupportDict.hpp>
#include <QBComponentAPI/support/typed/SupportTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(support)
