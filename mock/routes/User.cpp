// The mock service's routes of the account domain.
#include <QBComponentAPI/user/User.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(user)
