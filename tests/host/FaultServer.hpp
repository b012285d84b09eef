// A scripted HTTP server on 127.0.0.1 for fault tests: each request, in order, gets the next action.
#pragma once

#include <arpa/inet.h>
#include <netinet/in.h>
#include <poll.h>
#include <sys/socket.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <string>
#include <thread>
#include <vector>

namespace qb::test {

class FaultServer {
 public:
  enum class Action { ok, unavailable, dropMidReply, silent };

  explicit FaultServer(std::vector<Action> script) : script_(std::move(script)) {
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
    ::close(listener_);
  }
  FaultServer(const FaultServer&) = delete;
  FaultServer& operator=(const FaultServer&) = delete;

  std::string baseUrl() const { return "http://127.0.0.1:" + std::to_string(port_) + "/"; }
  int requests() const { return requests_.load(); }

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
      handle(connection);
    }
  }

  // Reads one request (headers and a Content-Length body), bounded in time, then acts on it.
  void handle(int connection) {
    std::string request;
    const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    char buffer[4096];
    while (std::chrono::steady_clock::now() < deadline && !stop_) {
      const auto end = request.find("\r\n\r\n");
      if (end != std::string::npos) {
        const auto lengthAt = request.find("Content-Length: ");
        const std::size_t length =
            lengthAt == std::string::npos || lengthAt > end ? 0 : std::stoul(request.substr(lengthAt + 16));
        if (request.size() >= end + 4 + length) break;
      }
      if (!wait(connection)) continue;
      const ssize_t n = ::recv(connection, buffer, sizeof buffer, 0);
      if (n <= 0) break;
      request.append(buffer, static_cast<std::size_t>(n));
    }
    const int index = requests_++;
    const Action action = index < static_cast<int>(script_.size()) ? script_[index] : Action::ok;
    std::string reply;
    switch (action) {
      case Action::ok:
        reply =
            "HTTP/1.1 200 OK\r\nContent-Type: application/json\r\nContent-Length: 12\r\nConnection: "
            "close\r\n\r\n{\"faqs\": []}";
        break;
      case Action::unavailable:
        reply = "HTTP/1.1 503 Service Unavailable\r\nContent-Length: 4\r\nConnection: close\r\n\r\nbusy";
        break;
      case Action::dropMidReply:
        reply = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\nConnection: close\r\n\r\n{\"user\": {";
        break;
      case Action::silent:
        while (!stop_) std::this_thread::sleep_for(std::chrono::milliseconds(10));
        break;
    }
    if (!reply.empty()) ::send(connection, reply.data(), reply.size(), MSG_NOSIGNAL);
    ::close(connection);
  }

  std::vector<Action> script_;
  int listener_ = -1;
  int port_ = 0;
  std::atomic<bool> stop_{false};
  std::atomic<int> requests_{0};
  std::thread thread_;
};

}  // namespace qb::test
