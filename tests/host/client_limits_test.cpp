// The host against servers that misbehave: connections closed under a POST; and one client shared by many
// threads. Loopback only; every wait is bounded.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
#include <thread>

#include "host/FaultServer.hpp"
#include "mock/Service.hpp"

namespace qb {
namespace {

using host::Client;
using host::ClientOptions;
using test::FaultServer;
using Action = FaultServer::Action;
using Step = FaultServer::Step;
using std::chrono::milliseconds;

const UserGetFaqRequest kGet{.languageCode = LanguageCode::en, .deviceType = DeviceType::web};
const UserDeleteAccountRequest kPost{};

ClientOptions options(std::string baseUrl) {
  return {.baseUrl = std::move(baseUrl),
          .allowInsecureLoopback = true,
          .timeout = milliseconds(1500),
          .maxRetries = 0,
          .backoff = milliseconds(1)};
}

TEST(HostHostile, APostReachesTheServiceAtMostOnce) {
  struct Case {
    const char* name;
    std::vector<Step> script;
    std::vector<std::string> calls;  // GET, POST, or EMPTY (a POST without a body)
    bool lastFails;                  // with a TransportError
    int posts;                       // POSTs the server saw
    int lastOnConnection;            // 0: the last request came on a new connection
  } cases[] = {
      {"GET after GET", {Action::okKeepAlive, Action::okKeepAlive}, {"GET", "GET"}, false, 0, 1},
      {"POST after GET", {Action::okKeepAlive, Action::okKeepAlive}, {"GET", "POST"}, false, 1, 1},
      {"GET after POST", {Action::okKeepAlive, Action::okKeepAlive}, {"POST", "GET"}, false, 1, 1},
      {"POST after GET, closed unanswered",
       {Action::okKeepAlive, Action::closeUnanswered},
       {"GET", "POST"},
       true,
       1,
       1},
      {"POST after POST, closed unanswered",
       {Action::okKeepAlive, Action::closeUnanswered},
       {"POST", "POST"},
       true,
       2,
       1},
      {"empty POST after GET, closed unanswered",
       {Action::okKeepAlive, Action::closeUnanswered},
       {"GET", "EMPTY"},
       true,
       1,
       0},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    FaultServer server(c.script);
    Client client(options(server.baseUrl()));
    client.setAccessToken("t");
    for (std::size_t i = 0; i < c.calls.size(); ++i) {
      auto call = [&] {
        if (c.calls[i] == "GET") {
          client.send(kGet);
        } else if (c.calls[i] == "POST") {
          client.send(kPost);
        } else {
          client.send(*QBUserDeleteAccountMessage::initWithData());
        }
      };
      if (i + 1 == c.calls.size() && c.lastFails) {
        EXPECT_THROW(call(), host::TransportError);
      } else {
        EXPECT_NO_THROW(call());
      }
    }
    const auto seen = server.seen();
    ASSERT_EQ(seen.size(), c.calls.size()) << "nothing was sent twice";
    EXPECT_EQ(std::count_if(seen.begin(), seen.end(), [](const auto& s) { return s.method == "POST"; }), c.posts);
    EXPECT_EQ(seen.back().onConnection, c.lastOnConnection);
  }
}

// One client, many threads, GETs and POSTs mixed: each thread's calls take a handle of their own from the
// transport's pool. Run under ThreadSanitizer in CI.
TEST(HostHostile, EightThreadsShareOneClient) {
  mock::Service service;
  service.start();
  Client client({.baseUrl = service.baseUrl(), .allowInsecureLoopback = true});
  const auto init = client.send(UserInitialiseRequest{.languageCode = LanguageCode::en, .countryCode = "US"});
  client.setAccessToken(*init.accessToken);
  constexpr int kThreads = 8, kCalls = 20;
  std::atomic<int> failures{0};
  std::vector<std::thread> threads;
  for (int t = 0; t < kThreads; ++t) {
    threads.emplace_back([&] {
      for (int i = 0; i < kCalls; ++i) {
        try {
          if (i % 2) {
            client.send(UserGetConfigRequest{.languageCode = LanguageCode::en, .countryCode = "US"});
          } else {
            client.send(kGet);
          }
        } catch (const Error&) {
          ++failures;
        }
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_EQ(failures.load(), 0);
  EXPECT_EQ(service.requestCount(), 1u + kThreads * kCalls);
}

}  // namespace
}  // namespace qb
