// The tool's parts compiled one domain at a time: each domain's registry entries and its part of the wire
// reference come from a file of its own under cli/domains/, which includes that domain's headers only, so
// that a change to one record rebuilds the tool's part of its domain and nothing else.
#pragma once

#include <QBComponentAPI/Catalogues.hpp>
#include <vector>

#include "cli/Registry.hpp"

namespace qb::cli {

namespace openapi {
class Generator;
}

/// The registry's entries of a domain's endpoints, one per path, in catalogue order.
template <class Endpoints>
std::vector<Entry> domainEntries();

/// Adds a domain's paths and the schemas of its records to the wire reference.
template <class Endpoints, class Records>
void addDomainToReference(openapi::Generator& generator);

}  // namespace qb::cli
