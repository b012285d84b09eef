// A guest session on a fresh in-process mock service: the starting point of the end-to-end tests.
#pragma once

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <memory>
#include <string>

#include "mock/Service.hpp"

namespace qb {

struct MockSession {
  mock::Service service;
  host::Client client;

  // Through `transport` when given, else libcurl's.
  explicit MockSession(std::shared_ptr<host::Transport> transport = nullptr)
      : client(
            [this] {
              service.start();
              return host::ClientOptions{.baseUrl = service.baseUrl(), .allowInsecureLoopback = true};
            }(),
            std::move(transport)) {
    auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
    client.send(*init);
    client.setAccessToken(std::string(init->accessToken()->as_string()));
  }
};

}  // namespace qb
