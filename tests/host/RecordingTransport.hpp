// A transport for tests that need a reply's bytes exactly as they arrived: it hands every exchange to
// libcurl's transport, or answers with a canned reply instead, and keeps the body of the last reply.
#pragma once

#include <QBComponentAPI/host/Transport.hpp>
#include <memory>
#include <optional>
#include <string>

namespace qb::test {

class RecordingTransport : public host::Transport {
 public:
  // Answered (status 200) instead of a service while set.
  std::optional<std::string> canned;

  host::HttpResponse send(const host::HttpRequest& request) override {
    host::HttpResponse response = canned ? host::HttpResponse{.status = 200, .body = *canned} : curl_->send(request);
    lastBody_ = response.body.str();
    return response;
  }
  const std::string& lastBody() const { return lastBody_; }

 private:
  std::shared_ptr<host::Transport> curl_ = host::makeCurlTransport();
  std::string lastBody_;
};

}  // namespace qb::test
