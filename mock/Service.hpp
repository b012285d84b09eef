// qb::mock::Service: a local service that answers every endpoint of the catalogues from in-memory state, over
// real HTTP on loopback. Used by the tests, the qbapi tool and as the qbapi-mock binary.
#pragma once

#include <chrono>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>

namespace qb::mock {

class Service {
 public:
  // The largest request body read; a longer one is answered 413 without being kept.
  static constexpr std::size_t kMaxBodyBytes = std::size_t{8} << 20;
  // How long a connection may sit idle between requests, or stall while sending a request or taking a
  // reply, before the service drops it.
  static constexpr std::chrono::seconds kStallTimeout{2};
  // Connections served at once; so many stalled clients cannot keep the others waiting.
  static constexpr std::size_t kWorkers = 32;

  // Access tokens and verification codes come from `seed` when one is given (the same ones on every
  // run), else from std::random_device. Account and item ids are the same on every run either way.
  explicit Service(std::optional<std::uint64_t> seed = std::nullopt);
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
