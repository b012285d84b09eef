// qbapi-mock: the local mock service as a program. Prints the bound port and serves until stopped.
#include <charconv>
#include <csignal>
#include <iostream>
#include <string_view>
#include <thread>

#include "mock/Service.hpp"

namespace {
volatile std::sig_atomic_t stopRequested = 0;
void onSignal(int) { stopRequested = 1; }

constexpr const char* kUsage =
    "usage: qbapi-mock [PORT]\n"
    "       qbapi-mock --help\n"
    "\n"
    "Serves the mock service on http://127.0.0.1:PORT/ until interrupted (SIGINT or SIGTERM) and prints\n"
    "its URL. PORT 0 or none picks a free port. Point qbapi at it with\n"
    "  --base-url http://127.0.0.1:PORT/ --allow-insecure-loopback\n";
}  // namespace

int main(int argc, char** argv) {
  int port = 0;
  if (argc > 1) {
    const std::string_view arg = argv[1];
    if (arg == "--help" || arg == "-h") {
      std::cout << kUsage;
      return 0;
    }
    const auto [end, ec] = std::from_chars(arg.data(), arg.data() + arg.size(), port);
    const bool isPort = ec == std::errc() && end == arg.data() + arg.size() && port >= 0 && port <= 65535;
    if (!isPort || argc > 2) {
      std::cerr << "qbapi-mock: unexpected argument " << (isPort ? argv[2] : argv[1])
                << " (the one argument is a port, 0 to 65535)\n\n"
                << kUsage;
      return 2;
    }
  }
  qb::mock::Service service;
  try {
    std::cout << "qbapi-mock listening on "
              << "http://127.0.0.1:" << service.start(port) << "/" << std::endl;
  } catch (const std::exception& e) {
    std::cerr << e.what() << "\n";
    return 1;
  }
  std::signal(SIGINT, onSignal);
  std::signal(SIGTERM, onSignal);
  while (!stopRequested) std::this_thread::sleep_for(std::chrono::milliseconds(100));
  service.stop();
  return 0;
}
