// The tool's part of the content catalogue: its registry entries and its part of the wire reference.
#include <QBComponentAPI/cms/Cms.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(cms)
