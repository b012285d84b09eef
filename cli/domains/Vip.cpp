// The tool's part of the subscription status: its registry entries and its part of the wire reference.
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(vip)
