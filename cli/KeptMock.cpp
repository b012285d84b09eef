#include "cli/KeptMock.hpp"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <thread>

#include "mock/Service.hpp"

namespace qb::cli {
namespace {

namespace fs = std::filesystem;

// Whether `pid` is a running qbapi (by program name): a process id alone may have been reused by another program since
// the state file was written, and that one must never be signalled.
bool isKeptMockProcess(long pid) {
  if (pid <= 0) return false;
  std::error_code ec;
  const fs::path self = fs::read_symlink("/proc/self/exe", ec);
  if (ec) return false;
  std::string other = fs::read_symlink("/proc/" + std::to_string(pid) + "/exe", ec).filename().string();
  // A rebuilt program shows as "qbapi (deleted)" in the processes started before the build.
  if (const auto cut = other.find(" (deleted)"); cut != std::string::npos) other.resize(cut);
  return !ec && other == self.filename().string();
}

void writeState(const KeptMock& kept) {
  const std::string path = keptMockStatePath();
  const std::string temporary = path + ".tmp" + std::to_string(::getpid());
  {
    std::ofstream out(temporary, std::ios::trunc);
    out << toJson(JsonMap{{"base_url", kept.baseUrl}, {"token", kept.token}, {"pid", kept.pid}});
    if (!out) throw Error("cannot write " + temporary);
  }
  fs::rename(temporary, path);
  fs::permissions(path, fs::perms::owner_read | fs::perms::owner_write);
}

// The background process: serves until SIGTERM, SIGINT or SIGHUP, reporting "ok" or why it could not
// start through `report`.
[[noreturn]] void serve(int port, int report) {
  ::setsid();
  const int null = ::open("/dev/null", O_RDWR);
  if (null >= 0) {
    ::dup2(null, 0);
    ::dup2(null, 1);
    ::dup2(null, 2);
  }
  // Blocked before the service starts its threads, so that only sigwait below receives them.
  sigset_t stop;
  sigemptyset(&stop);
  for (int s : {SIGTERM, SIGINT, SIGHUP}) sigaddset(&stop, s);
  pthread_sigmask(SIG_BLOCK, &stop, nullptr);
  int status = 0;
  try {
    mock::Service service;
    service.start(port);
    std::string token;
    {
      // Closed again at once: a connection left open would hold the service's stop until it timed out.
      host::Client client({.baseUrl = service.baseUrl(), .allowInsecureLoopback = true});
      auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
      client.send(*init);
      token = std::string(init->accessToken()->as_string());
    }
    writeState({service.baseUrl(), token, static_cast<long>(::getpid())});
    (void)!::write(report, "ok", 2);
    ::close(report);
    int received = 0;
    sigwait(&stop, &received);
    service.stop();
  } catch (const std::exception& e) {
    const std::string why = e.what();
    (void)!::write(report, why.data(), why.size());
    status = 1;
  }
  std::error_code ec;
  if (const auto kept = findKeptMock(); !kept || kept->pid == ::getpid()) fs::remove(keptMockStatePath(), ec);
  std::_Exit(status);
}

}  // namespace

std::string keptMockStatePath() {
  if (const char* path = std::getenv("QBAPI_MOCK_STATE"); path && *path) return path;
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  const std::string dir = runtime && *runtime ? runtime : "/tmp";
  return dir + "/qbapi-mock-" + std::to_string(::getuid()) + ".json";
}

std::optional<KeptMock> findKeptMock() {
  std::ifstream in(keptMockStatePath());
  if (!in) return std::nullopt;
  const std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  try {
    const JsonMap state = parseJsonMap(text);
    KeptMock kept{std::string(state.at("base_url").as_string()), std::string(state.at("token").as_string()),
                  static_cast<long>(state.at("pid").as_int64())};
    if (!isKeptMockProcess(kept.pid)) return std::nullopt;
    return kept;
  } catch (const std::exception&) {
    return std::nullopt;  // a torn or foreign file: as if none were running
  }
}

KeptMock startKeptMock(int port) {
  if (const auto running = findKeptMock()) {
    throw Error("a mock service is running already at " + running->baseUrl + " (qbapi mock stop ends it)");
  }
  int pipe[2];
  if (::pipe(pipe) != 0) throw Error("cannot start the mock service: no pipe");
  const pid_t pid = ::fork();
  if (pid < 0) throw Error("cannot start the mock service: fork failed");
  if (pid == 0) {
    ::close(pipe[0]);
    serve(port, pipe[1]);
  }
  ::close(pipe[1]);
  std::string answer;
  char buffer[256];
  for (ssize_t n; (n = ::read(pipe[0], buffer, sizeof buffer)) != 0;) {
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) break;
    answer.append(buffer, static_cast<std::size_t>(n));
  }
  ::close(pipe[0]);
  if (answer != "ok") {
    ::waitpid(pid, nullptr, 0);
    throw Error("the mock service could not start: " + (answer.empty() ? std::string("it exited") : answer));
  }
  const auto kept = findKeptMock();
  if (!kept) throw Error("the mock service started but left no state in " + keptMockStatePath());
  return *kept;
}

bool stopKeptMock() {
  const auto kept = findKeptMock();
  if (!kept) return false;
  ::kill(static_cast<pid_t>(kept->pid), SIGTERM);
  // Gone once it is no longer a running qbapi (an exited process nobody has reaped yet counts as gone).
  for (int i = 0; i < 500 && isKeptMockProcess(kept->pid); ++i) {
    ::waitpid(static_cast<pid_t>(kept->pid), nullptr, WNOHANG);  // reaps it when it is our own child
    std::this_thread::sleep_for(std::chrono::milliseconds(10));
  }
  std::error_code ec;
  fs::remove(keptMockStatePath(), ec);
  return true;
}

}  // namespace qb::cli
