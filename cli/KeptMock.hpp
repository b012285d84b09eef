// A mock service that outlives one qbapi call: `qbapi mock start` leaves it running in the background
// with a guest session, and later calls without --base-url use it (and its session), so an update
// followed by a get shows the update. Its address, session and process id are kept in a state file:
// $QBAPI_MOCK_STATE, else qbapi-mock-<uid>.json in $XDG_RUNTIME_DIR or /tmp.
#pragma once

#include <optional>
#include <string>

namespace qb::cli {

struct KeptMock {
  std::string baseUrl;
  std::string token;  // the guest session opened when it started
  long pid = 0;
};

std::string keptMockStatePath();

// The kept mock, when the state file names a process that is still running.
std::optional<KeptMock> findKeptMock();

// Starts a mock service in a background process on `port` (0: a free one) and opens a guest session on
// it. Throws qb::Error when one is running already or it could not start.
KeptMock startKeptMock(int port);

// Stops the kept mock and removes the state file; false when none was running.
bool stopKeptMock();

}  // namespace qb::cli
