// The tool's part of the content catalogue: its registry entries and its part of the wire reference.
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>

#include "cli/DomainParts.hpp"

QB_CLI_DOMAIN(cms)
