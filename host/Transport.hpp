// The transport under qb::host::Client: one HTTP exchange per call. Apps test their own code with
// host/mocks/MockTransport.hpp; CurlTransport is the real one.
#pragma once

#include <chrono>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qb::host {

struct HttpRequest {
  std::string method;  // "GET" or "POST"
  std::string url;     // complete, with the query string
  std::vector<std::pair<std::string, std::string>> headers{};
  std::string contentType{};  // of the body; empty when there is none
  std::string body{};
  std::chrono::milliseconds timeout{15000};
};

struct HttpResponse {
  long status = 0;
  std::string body{};
};

class Transport {
 public:
  virtual ~Transport() = default;
  // Performs the exchange. Throws TransportError when no complete answer arrives.
  virtual HttpResponse send(const HttpRequest& request) = 0;
};

// libcurl. A pool of handles, each used by one thread at a time and keeping its own connections; the
// handles share their DNS cache and TLS sessions.
std::shared_ptr<Transport> makeCurlTransport();

}  // namespace qb::host
