// The mock service's routes of the subscription status.
#include <QBComponentAPI/vip/Vip.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(vip)
