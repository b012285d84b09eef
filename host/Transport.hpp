// The transport under qb::host::Client: one HTTP exchange per call. Apps test their own code with
// host/mocks/MockTransport.hpp; CurlTransport is the real one.
#pragma once

#include <QBComponentAPI/frame/PaddedBytes.hpp>
#include <chrono>
#include <cstddef>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace qb::host {

struct HttpRequest {
  std::string method;  ///< "GET" or "POST"
  std::string url;     ///< complete, with the query string
  std::vector<std::pair<std::string, std::string>> headers{};
  std::string contentType{};  ///< of the body; empty when there is none
  std::string body{};
  std::chrono::milliseconds timeout{15000};
  /// The most body bytes the reply may bring, counted after content decoding; more fails the exchange
  /// with ReplyTooLargeError.
  std::size_t maxReplyBytes{64 * 1024 * 1024};
};

struct HttpResponse {
  long status = 0;
  /// For a status other than 2xx only the first HttpError::kKeptBodyBytes are kept. Received with the
  /// parser's padding after it, so the decoders read it where it is.
  PaddedBytes body{};
  /// How long the service asked the client to wait (Retry-After, as seconds or as an HTTP date).
  std::optional<std::chrono::seconds> retryAfter{};
  /// Body bytes received, after decoding, including those not kept.
  std::size_t bytesReceived{};
};

class Transport {
 public:
  virtual ~Transport() = default;
  /// Performs the exchange. Throws TransportError when no complete answer arrives (transient() tells
  /// whether trying again may help) and ReplyTooLargeError when the answer passes request.maxReplyBytes.
  virtual HttpResponse send(const HttpRequest& request) = 0;
};

/// libcurl. A pool of handles, each used by one thread at a time and keeping its own connections; the
/// handles share their DNS cache and TLS sessions.
std::shared_ptr<Transport> makeCurlTransport();

}  // namespace qb::host
