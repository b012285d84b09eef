// The mock service's routes of the subscription status.
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(vip)
