// qbapi-mock: the local mock service as a program. Prints the bound port and serves until stopped.
#include <charconv>
#include <csignal>
#include <cstdint>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "mock/Service.hpp"

namespace {
volatile std::sig_atomic_t stopRequested = 0;
void onSignal(int) { stopRequested = 1; }

constexpr const char* kUsage =
    "usage: qbapi-mock [--seed N] [PORT]\n"
    "       qbapi-mock --help\n"
    "\n"
    "Serves the mock service on http://127.0.0.1:PORT/ until interrupted (SIGINT or SIGTERM) and prints\n"
    "its URL. PORT 0 or none picks a free port. Point qbapi at it with\n"
    "  --base-url http://127.0.0.1:PORT/ --allow-insecure-loopback\n"
    "\n"
    "  --seed N  draw access tokens and verification codes from N (0 to 2^64-1), the same ones on every\n"
    "            run; without it they are random\n";

// The whole of `text` as a number, if it is one.
template <class T>
std::optional<T> number(std::string_view text) {
  T value{};
  const auto [end, ec] = std::from_chars(text.data(), text.data() + text.size(), value);
  if (ec != std::errc() || end != text.data() + text.size()) return std::nullopt;
  return value;
}

int refuse(std::string_view problem) {
  std::cerr << "qbapi-mock: " << problem << "\n\n" << kUsage;
  return 2;
}
}  // namespace

int main(int argc, char** argv) {
  std::optional<int> port;
  std::optional<std::uint64_t> seed;
  for (int i = 1; i < argc; ++i) {
    const std::string_view arg = argv[i];
    if (arg == "--help" || arg == "-h") {
      std::cout << kUsage;
      return 0;
    }
    if (arg == "--seed") {
      if (seed) return refuse("--seed is given twice");
      if (i + 1 == argc) return refuse("--seed needs a number");
      seed = number<std::uint64_t>(argv[++i]);
      if (!seed) return refuse("--seed " + std::string(argv[i]) + " is not a number from 0 to 2^64-1");
      continue;
    }
    const auto value = number<int>(arg);
    if (port || !value || *value < 0 || *value > 65535) {
      return refuse("unexpected argument " + std::string(arg) + " (the one argument is a port, 0 to 65535)");
    }
    port = value;
  }
  qb::mock::Service service(seed);
  try {
    std::cout << "qbapi-mock listening on "
              << "http://127.0.0.1:" << service.start(port.value_or(0)) << "/" << std::endl;
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
