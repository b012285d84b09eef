// qbapi-mock: the local mock service as a program. Prints the bound port and serves until stopped.
#include <csignal>
#include <cstdlib>
#include <iostream>
#include <thread>

#include "mock/Service.hpp"

namespace {
volatile std::sig_atomic_t stopRequested = 0;
void onSignal(int) { stopRequested = 1; }
}  // namespace

int main(int argc, char** argv) {
  const int port = argc > 1 ? std::atoi(argv[1]) : 0;
  if (argc > 2 || port < 0 || port > 65535) {
    std::cerr << "usage: qbapi-mock [PORT]   (0 or none picks a free port)\n";
    return 2;
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
