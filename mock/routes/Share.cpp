// The mock service's routes of sharing.
#include <QBComponentAPI/share/typed/ShareTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(share)
