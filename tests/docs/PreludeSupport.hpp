// What the preludes of the markdown fragments share: the mock service started for the test (QB_BASE_URL), a
// guest session on it, and a transport that keeps the bytes of the last reply as the service sent them.
#pragma once

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/host/Transport.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <string>

#include "host/RecordingTransport.hpp"

namespace qb::docs {

// The base URL of the mock service run_with_mock.py started for this block.
inline std::string serviceUrl() {
  const char* url = std::getenv("QB_BASE_URL");
  if (url == nullptr || *url == '\0')
    throw std::runtime_error("QB_BASE_URL is not set: run blocks with run_with_mock.py");
  return url;
}

inline host::ClientOptions serviceOptions() { return {.baseUrl = serviceUrl(), .allowInsecureLoopback = true}; }

// Opens a guest session (user/initialise) on `client` and returns its token.
inline std::string signIn(host::Client& client) {
  auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
  client.send(*init);
  std::string token(init->accessToken().value().as_string());
  client.setAccessToken(token);
  return token;
}

using test::RecordingTransport;

// A client of the mock service whose transport records the replies.
struct RecordingClient {
  std::shared_ptr<RecordingTransport> transport = std::make_shared<RecordingTransport>();
  host::Client client{serviceOptions(), transport};
};

// The body of the service's reply to a Typed-face request sent through `service`.
template <class Request>
std::string replyTo(RecordingClient& service, const Request& request) {
  service.client.send(request);
  return service.transport->lastBody();
}

// Fails the block when what its fragment was to do did not happen.
inline void expect(bool condition, const char* what) {
  if (!condition) throw std::runtime_error(std::string("the fragment did not work: ") + what);
}

}  // namespace qb::docs
