// A scripted HTTP server on 127.0.0.1 for fault tests: each request, in order, gets the next step of the
// script (and a plain 200 once the script is over). Connections are served each on a thread of their own,
// so that one kept open does not hold up the next.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <array>
#include <atomic>
#include <chrono>
#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace qb::test {

class FaultServer {
 public:
  enum class Action {
    ok,               // 200 {"faqs": []}, then close
    okKeepAlive,      // 200 {"faqs": []}, and wait on the same connection for the next request
    unavailable,      // 503 "busy"
    dropMidReply,     // a 200 whose body stops short, then close
    silent,           // read the request and never answer
    closeUnanswered,  // read the request and close without a byte
    reply,            // Step::bytes as they are
  };
  struct Step {
    Step(Action a) : action(a) {}  // so that a script may be a list of actions
    Action action;
    std::string bytes{};
    bool keepAlive = false;  // Action::reply: keep the connection open after it
  };
  // A request as it arrived (counted once its headers are in, answered once its body is).
  struct Seen {
    std::string method;
    std::string head;  // request line and headers
    int onConnection;  // 0 for a connection's first request, 1 for its second, ...
  };

  explicit FaultServer(std::vector<Step> script) : script_(std::move(script)) {
    listener_ = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    ::bind(listener_, reinterpret_cast<sockaddr*>(&address), sizeof address);
    ::listen(listener_, 16);
    socklen_t length = sizeof address;
    ::getsockname(listener_, reinterpret_cast<sockaddr*>(&address), &length);
    port_ = ntohs(address.sin_port);
    thread_ = std::thread([this] { serve(); });
  }
  ~FaultServer() {
    stop_ = true;
    thread_.join();
    for (auto& connection : connections_) connection.join();
    ::close(listener_);
  }
  FaultServer(const FaultServer&) = delete;
  FaultServer& operator=(const FaultServer&) = delete;

  // The raw bytes of a reply.
  static Step raw(std::string bytes, bool keepAlive = false) {
    Step step(Action::reply);
    step.bytes = std::move(bytes);
    step.keepAlive = keepAlive;
    return step;
  }
  // An HTTP/1.1 reply: `headers` are extra lines, each ending in CRLF. Without a Content-Length the body
  // ends where the connection closes.
  static std::string http(int status, std::string_view headers, std::string_view body, bool contentLength = true) {
    std::string text = "HTTP/1.1 " + std::to_string(status) + " Scripted\r\n";
    text += headers;
    if (contentLength) text += "Content-Length: " + std::to_string(body.size()) + "\r\n";
    text += "Connection: close\r\n\r\n";
    text += body;
    return text;
  }

  std::string baseUrl() const { return "http://127.0.0.1:" + std::to_string(port_) + "/"; }
  int port() const { return port_; }
  int requests() const { return requests_.load(); }
  int connections() const { return accepted_.load(); }
  std::vector<Seen> seen() const {
    std::lock_guard lock(mutex_);
    return seen_;
  }

 private:
  bool wait(int fd) {
    pollfd p{fd, POLLIN, 0};
    return ::poll(&p, 1, 20) > 0;
  }

  void serve() {
    while (!stop_) {
      if (!wait(listener_)) continue;
      const int connection = ::accept(listener_, nullptr, nullptr);
      if (connection < 0) continue;
      ++accepted_;
      connections_.emplace_back([this, connection] { handle(connection); });
    }
  }

  enum class Read { nothing, headersOnly, whole };
  // Reads one request (headers and a Content-Length body) within two seconds. Nothing when the peer closed,
  // nothing came, or what came is not HTTP (a TLS handshake); headersOnly when the body fell short.
  Read read(int connection, std::string& pending, std::string& request) {
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    char buffer[4096];
    auto end = std::string::npos;
    while (std::chrono::steady_clock::now() < deadline && !stop_) {
      if (!pending.empty() && pending[0] == '\x16') return Read::nothing;
      end = pending.find("\r\n\r\n");
      if (end != std::string::npos) {
        const auto lengthAt = pending.find("Content-Length: ");
        const std::size_t length =
            lengthAt == std::string::npos || lengthAt > end ? 0 : std::stoul(pending.substr(lengthAt + 16));
        if (pending.size() >= end + 4 + length) {
          request = pending.substr(0, end + 4 + length);
          pending.erase(0, end + 4 + length);
          return Read::whole;
        }
      }
      if (!wait(connection)) continue;
      const ssize_t n = ::recv(connection, buffer, sizeof buffer, 0);
      if (n <= 0) break;
      pending.append(buffer, static_cast<std::size_t>(n));
    }
    if (end == std::string::npos) return Read::nothing;
    request = pending;
    return Read::headersOnly;
  }

  void write(int connection, std::string_view bytes) {
    while (!bytes.empty()) {
      const ssize_t n = ::send(connection, bytes.data(), bytes.size(), MSG_NOSIGNAL);
      if (n <= 0) return;  // the client stopped reading
      bytes.remove_prefix(static_cast<std::size_t>(n));
    }
  }

  void handle(int connection) {
    static constexpr std::string_view kFaqs = "{\"faqs\": []}";
    std::string pending, request;
    for (int onConnection = 0; !stop_; ++onConnection) {
      const Read got = read(connection, pending, request);
      if (got == Read::nothing) break;
      const int index = requests_++;
      {
        std::lock_guard lock(mutex_);
        seen_.push_back(
            {request.substr(0, request.find(' ')), request.substr(0, request.find("\r\n\r\n")), onConnection});
      }
      if (got == Read::headersOnly) break;
      const Step step = index < static_cast<int>(script_.size()) ? script_[index] : Step(Action::ok);
      bool keepAlive = false;
      switch (step.action) {
        case Action::ok: write(connection, http(200, "Content-Type: application/json\r\n", kFaqs)); break;
        case Action::okKeepAlive:
          write(connection,
                "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: 12\r\n\r\n" + std::string(kFaqs));
          keepAlive = true;
          break;
        case Action::unavailable: write(connection, http(503, "", "busy")); break;
        case Action::dropMidReply:
          write(connection, "HTTP/1.1 200 OK\r\nContent-Length: 100\r\nConnection: close\r\n\r\n{\"user\": {");
          break;
        case Action::silent:
          while (!stop_) std::this_thread::sleep_for(std::chrono::milliseconds(10));
          break;
        case Action::closeUnanswered: break;
        case Action::reply:
          write(connection, step.bytes);
          keepAlive = step.keepAlive;
          break;
      }
      if (!keepAlive) break;
    }
    ::close(connection);
  }

  std::vector<Step> script_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::atomic<int> requests_{0};
  std::atomic<int> accepted_{0};
  mutable std::mutex mutex_;
  std::vector<Seen> seen_;
  std::vector<std::thread> connections_;  // only the serving thread adds, and only the destructor joins
  std::thread thread_;
};

// A gzip stream of `size` zero bytes that deflate shrinks about 160-fold (one fixed-Huffman block: a zero,
// then copies of 258 bytes from one byte back), for replies that inflate far past their size on the wire.
inline std::string gzipOfZeros(std::size_t size) {
  std::string out("\x1f\x8b\x08\x00\x00\x00\x00\x00\x00\xff", 10);
  std::uint32_t bits = 0;
  int count = 0;
  auto put = [&](std::uint32_t value, int width) {  // least significant bit first
    bits |= value << count;
    count += width;
    while (count >= 8) {
      out += static_cast<char>(bits & 0xff);
      bits >>= 8;
      count -= 8;
    }
  };
  auto code = [&](std::uint32_t value, int width) {  // Huffman codes go most significant bit first
    std::uint32_t reversed = 0;
    for (int i = 0; i < width; ++i) reversed |= ((value >> i) & 1u) << (width - 1 - i);
    put(reversed, width);
  };
  put(1, 1);  // the final block
  put(1, 2);  // fixed Huffman codes
  std::size_t left = size;
  if (left > 0) {
    code(0x30, 8);  // literal 0
    --left;
  }
  for (; left >= 258; left -= 258) {
    code(0xc5, 8);  // length 258 (symbol 285)
    code(0, 5);     // distance 1
  }
  for (; left > 0; --left) code(0x30, 8);
  code(0, 7);  // end of block
  if (count > 0) put(0, 8 - count);

  std::array<std::uint32_t, 256> table{};
  for (std::uint32_t n = 0; n < 256; ++n) {
    std::uint32_t c = n;
    for (int k = 0; k < 8; ++k) c = c & 1 ? 0xedb88320u ^ (c >> 1) : c >> 1;
    table[n] = c;
  }
  std::uint32_t crc = 0xffffffffu;
  for (std::size_t i = 0; i < size; ++i) crc = table[crc & 0xff] ^ (crc >> 8);
  crc ^= 0xffffffffu;
  for (const std::uint32_t word : {crc, static_cast<std::uint32_t>(size)}) {
    for (int i = 0; i < 4; ++i) out += static_cast<char>((word >> (8 * i)) & 0xff);
  }
  return out;
}

}  // namespace qb::test
