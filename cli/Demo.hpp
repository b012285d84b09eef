// The tool's scripted uses of particular endpoints: the demo, the collection listing and the guest session
// it opens on the mock service. Kept apart from main.cpp so that the command line does not depend on any
// record of the library.
#pragma once

#include <QBComponentAPI/host/Client.hpp>
#include <cstdint>
#include <optional>

namespace qb::cli {

/// Opens a guest account (user/initialise) and keeps its token on the client.
void openGuestSession(host::Client& client);

/// Prints the signed-in user's whole collection, one item per line as JSON, page by page. On a failure
/// after some items, says on stderr where to resume (--after) before rethrowing.
void printCollection(host::Client& client, std::int64_t pageSize, std::optional<std::int64_t> after);

/// initialise, get_config, update with an avatar, get, get_faq, the collection through the pager,
/// delete_account, each shown as it goes.
void demo(host::Client& client);

}  // namespace qb::cli
