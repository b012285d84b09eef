// qb::mock::Service: a local service that answers every endpoint of the catalogues from in-memory state, over
// real HTTP on loopback. Used by the tests, the qbapi tool and as the qbapi-mock binary.
#pragma once

#include <atomic>
#include <cstdint>
#include <memory>
#include <string>

namespace qb::mock {

class Service {
 public:
  Service();
  ~Service();
  Service(const Service&) = delete;
  Service& operator=(const Service&) = delete;

  // Starts listening on 127.0.0.1:`port` (0 picks a free port) and returns the bound port. Throws
  // qb::Error when the port cannot be bound.
  int start(int port = 0);
  // Stops listening and waits for the serving thread; safe to call twice.
  void stop();

  // "http://127.0.0.1:<port>/"
  std::string baseUrl() const;
  // How many API requests reached the service (the /_mock/ routes are not counted).
  std::uint64_t requestCount() const;

 private:
  struct State;
  std::unique_ptr<State> state_;
};

}  // namespace qb::mock
