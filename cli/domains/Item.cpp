// The tool's part of the collection of identified items: its registry entries and its part of the wire reference.
#include <QBComponentAPI/item/Item.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(item)
