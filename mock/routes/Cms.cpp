// The mock service's routes of the content catalogue.
#include <QBComponentAPI/cms/Cms.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(cms)
