// The tool's part of the account domain: its registry entries and its part of the wire reference.
#include <QBComponentAPI/user/User.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(user)
