// The tool's part of customer support: its registry entries and its part of the wire reference.
#include <QBComponentAPI/support/Support.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(support)
