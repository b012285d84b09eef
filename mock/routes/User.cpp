// The mock service's routes of the account domain.
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(user)
