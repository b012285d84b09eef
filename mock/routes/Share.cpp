// The mock service's routes of sharing.
#include <QBComponentAPI/share/Share.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(share)
