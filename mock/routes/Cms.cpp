// The mock service's routes of the content catalogue.
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>

#include "mock/RouteParts.hpp"

QB_MOCK_DOMAIN(cms)
