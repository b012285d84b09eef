// The mock service against clients that misbehave: bytes no client library would send, bodies over the
// limit, connections that stall, and a route that throws. Raw sockets where libcurl would not misbehave.
#include <arpa/inet.h>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <QBComponentAPI/host/Transport.hpp>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <iterator>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "mock/Handlers.hpp"
#include "mock/Service.hpp"

namespace qb {
namespace {

using Clock = std::chrono::steady_clock;
using mock::Service;

// One connection to the service, in raw bytes.
class RawConnection {
 public:
  explicit RawConnection(int port) : fd_(::socket(AF_INET, SOCK_STREAM, 0)) {
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    address.sin_port = htons(static_cast<std::uint16_t>(port));
    connected_ = ::connect(fd_, reinterpret_cast<sockaddr*>(&address), sizeof address) == 0;
  }
  ~RawConnection() { ::close(fd_); }
  RawConnection(const RawConnection&) = delete;
  RawConnection& operator=(const RawConnection&) = delete;

  bool connected() const { return connected_; }

  void send(std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t n = ::send(fd_, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (n <= 0) return;
      bytes.remove_prefix(static_cast<std::size_t>(n));
    }
  }

  // The first answer (headers and a Content-Length body), or what came before `deadline`.
  std::string answer(Clock::time_point deadline) {
    std::string in;
    while (!complete(in) && receive(in, deadline)) {
    }
    return in;
  }

  // Whether the service closes the connection before `deadline`, whatever it answers first.
  bool dropped(Clock::time_point deadline) {
    std::string ignored;
    while (receive(ignored, deadline)) ignored.clear();
    return Clock::now() < deadline;
  }

 private:
  static bool complete(const std::string& in) {
    const auto end = in.find("\r\n\r\n");
    if (end == std::string::npos) return false;
    const auto length = in.find("Content-Length: ");
    return length < end && in.size() >= end + 4 + std::stoul(in.substr(length + 16));
  }

  // Appends what arrives; false once the connection is closed or `deadline` passes.
  bool receive(std::string& in, Clock::time_point deadline) {
    const auto left = std::chrono::duration_cast<std::chrono::milliseconds>(deadline - Clock::now()).count();
    pollfd p{fd_, POLLIN, 0};
    if (left <= 0 || ::poll(&p, 1, static_cast<int>(left)) <= 0) return false;
    char buffer[65536];
    const ssize_t n = ::recv(fd_, buffer, sizeof buffer, 0);
    if (n <= 0) return false;
    in.append(buffer, static_cast<std::size_t>(n));
    return true;
  }

  int fd_;
  bool connected_ = false;
};

struct Answer {
  int status = 0;
  std::string headers;
  std::string body;
};

Answer split(const std::string& raw) {
  const auto end = raw.find("\r\n\r\n");
  if (raw.size() < 12 || end == std::string::npos) return {};
  return {std::stoi(raw.substr(9, 3)), raw.substr(0, end + 2), raw.substr(end + 4)};
}

Answer roundTrip(int port, std::string_view request) {
  RawConnection connection(port);
  connection.send(request);
  return split(connection.answer(Clock::now() + std::chrono::seconds(5)));
}

std::string post(std::string_view path, std::string_view framing, std::string_view body) {
  return "POST " + std::string(path) + " HTTP/1.1\r\nHost: 127.0.0.1\r\n" +
         "Content-Type: application/x-www-form-urlencoded\r\n" + std::string(framing) + "\r\n" + std::string(body);
}

std::string withLength(std::string_view path, std::string_view body) {
  return post(path, "Content-Length: " + std::to_string(body.size()) + "\r\n", body);
}

std::string chunked(std::string_view path, std::string_view body) {
  std::string chunks;
  for (std::size_t at = 0; at < body.size(); at += 65536) {
    const std::string_view chunk = body.substr(at, 65536);
    char size[16];
    std::snprintf(size, sizeof size, "%zx\r\n", chunk.size());
    chunks += size + std::string(chunk) + "\r\n";
  }
  return post(path, "Transfer-Encoding: chunked\r\n", chunks + "0\r\n\r\n");
}

// A form body for get_verify_code, padded to `size` bytes.
std::string verifyCodeForm(std::size_t size) {
  std::string form = "email=fern%40example.com&language_code=0&pad=";
  form.resize(size, 'x');
  return form;
}

TEST(MockHardening, EveryRefusalHasItsOwnJsonError) {
  Service service;
  const int port = service.start();
  const std::string code = "/v3/user/get_verify_code";
  struct Case {
    const char* name;
    std::string request;
    int status;
    const char* error;   // empty when the request is served
    const char* header;  // a header line the answer must carry, or empty
  };
  const Case cases[] = {
      {"an unreadable request line", "NONSENSE\r\n\r\n", 400, "bad_request", ""},
      {"a path no route has", "GET /v3/user/no_such_endpoint HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n", 404, "not_found",
       ""},
      {"a route's path with another verb", "GET /v3/user/get_config HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n", 405,
       "method_not_allowed", "Allow: POST\r\n"},
      {"a target over httplib's length limit", "GET /" + std::string(9000, 'a') + " HTTP/1.1\r\n\r\n", 414,
       "uri_too_long", ""},
      {"a declared body one byte over the limit", withLength(code, verifyCodeForm(Service::kMaxBodyBytes + 1)), 413,
       "payload_too_large", ""},
      {"a chunked body one byte over the limit", chunked(code, verifyCodeForm(Service::kMaxBodyBytes + 1)), 413,
       "payload_too_large", ""},
      {"a form body of exactly the limit", withLength(code, verifyCodeForm(Service::kMaxBodyBytes)), 200, "", ""},
      {"a chunked body within the limit", chunked(code, verifyCodeForm(100000)), 200, "", ""},
      {"a handler's own refusal", withLength("/v3/user/get_config", "language_code=0"), 401, "auth_required", ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const Answer answer = roundTrip(port, c.request);
    EXPECT_EQ(answer.status, c.status);
    EXPECT_NE(answer.headers.find("Content-Type: application/json\r\n"), std::string::npos) << answer.headers;
    EXPECT_NE(answer.headers.find(c.header), std::string::npos) << answer.headers;
    const JsonMap body = parseJsonMap(answer.body);
    EXPECT_EQ(mock::text(body, "error"), c.error);
    EXPECT_EQ(mock::text(body, "message").empty(), *c.error == '\0');
  }
}

// An exception that escapes a route: the mock's own code-lookup route cannot write an address that is not
// UTF-8 as JSON, and throws.
TEST(MockHardening, AnExceptionIsAnsweredWithoutItsText) {
  Service service;
  const int port = service.start();
  ASSERT_EQ(roundTrip(port, withLength("/v3/user/get_verify_code", "email=%FF&language_code=0")).status, 200);
  const Answer answer = roundTrip(port, "GET /_mock/verify_codes/%FF HTTP/1.1\r\nHost: 127.0.0.1\r\n\r\n");
  EXPECT_EQ(answer.status, 500);
  EXPECT_EQ(answer.headers.find("EXCEPTION"), std::string::npos) << answer.headers;
  EXPECT_EQ(answer.headers.find("JSON"), std::string::npos) << answer.headers;
  EXPECT_EQ(answer.body, R"({"error":"internal_error","message":"the service failed while answering"})");
}

TEST(MockHardening, StalledClientsNeitherBlockOthersNorStay) {
  Service service;
  const int port = service.start();
  const std::pair<const char*, std::string> stalls[] = {
      {"silent", ""},
      {"half a request line", "POST /v3/user/ini"},
      {"headers without their end", "POST /v3/user/initialise HTTP/1.1\r\nHost: 127.0.0.1\r\n"},
      {"a body shorter than its length", post("/v3/user/initialise", "Content-Length: 100\r\n", "country_code=US")},
  };
  const auto opened = Clock::now();
  std::vector<std::unique_ptr<RawConnection>> stalled;
  for (int round = 0; round < 2; ++round) {
    for (const auto& [name, bytes] : stalls) {
      stalled.push_back(std::make_unique<RawConnection>(port));
      ASSERT_TRUE(stalled.back()->connected()) << name;
      stalled.back()->send(bytes);
    }
  }

  const auto asked = Clock::now();
  const host::HttpResponse reply = host::makeCurlTransport()->send({.method = "POST",
                                                                    .url = service.baseUrl() + "v3/user/initialise",
                                                                    .contentType = "application/x-www-form-urlencoded",
                                                                    .body = "language_code=0&country_code=US",
                                                                    .timeout = std::chrono::seconds(10)});
  EXPECT_EQ(reply.status, 200);
  EXPECT_LT(Clock::now() - asked, std::chrono::seconds(2));

  // A stall ends at the timeout; one that got a 400 for it then waits out the idle timeout as well.
  const auto deadline = opened + 2 * Service::kStallTimeout + std::chrono::milliseconds(1500);
  for (std::size_t i = 0; i < stalled.size(); ++i) {
    EXPECT_TRUE(stalled[i]->dropped(deadline)) << stalls[i % std::size(stalls)].first;
  }
}

// The first access token and verification code a fresh service gives out.
std::pair<std::string, std::string> firstSecrets(std::optional<std::uint64_t> seed) {
  Service service(seed);
  service.start();
  auto transport = host::makeCurlTransport();
  auto form = [&](const std::string& path, const std::string& body) {
    return parseJsonMap(transport
                            ->send({.method = "POST",
                                    .url = service.baseUrl() + path,
                                    .contentType = "application/x-www-form-urlencoded",
                                    .body = body})
                            .body);
  };
  const JsonMap init = form("v3/user/initialise", "language_code=0&country_code=US");
  form("v3/user/get_verify_code", "email=fern%40example.com&language_code=0");
  const JsonMap code = parseJsonMap(
      transport->send({.method = "GET", .url = service.baseUrl() + "_mock/verify_codes/fern@example.com"}).body);
  return {mock::text(init, "access_token"), mock::text(code, "code")};
}

TEST(MockHardening, SecretsAreRandomUnlessSeeded) {
  struct Case {
    const char* name;
    std::optional<std::uint64_t> first, second;
    bool same;
  };
  const Case cases[] = {
      {"no seed", std::nullopt, std::nullopt, false},
      {"one seed twice", 42, 42, true},
      {"two seeds", 42, 43, false},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(c.name);
    const auto a = firstSecrets(c.first);
    const auto b = firstSecrets(c.second);
    ASSERT_FALSE(a.first.empty() || a.second.empty());
    EXPECT_EQ(a == b, c.same) << a.first << " " << a.second << " / " << b.first << " " << b.second;
  }
}

}  // namespace
}  // namespace qb
