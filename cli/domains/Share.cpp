// The tool's part of sharing: its registry entries and its part of the wire reference.
#include <QBComponentAPI/share/Share.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(share)
