// The mock service's routes of customer support.
#include <QBComponentAPI/support/Support.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(support)
