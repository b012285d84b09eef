// The tool's part of the subscription status: its registry entries and its part of the wire reference.
#include <QBComponentAPI/vip/Vip.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(vip)
