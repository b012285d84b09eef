// qb_load: the host end to end against the mock service on loopback. Eight threads make a bounded number
// of get_faq calls (replies of about 20 KB, keep-alive) through one shared qb::host::Client, then the same
// calls are made the way an app would write them by hand: a libcurl easy handle per thread, kept for
// every call, and nlohmann::json to parse and read the reply. Both read every field into a checksum;
// calls per second, p50/p99 latency and errors are printed for each, then one `qb-load:` line.
//
//   qb_load [CALLS] [THREADS]     (defaults 4000 and 8)
#include <curl/curl.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <functional>
#include <nlohmann/json.hpp>
#include <string>
#include <thread>
#include <vector>

#include "mock/Service.hpp"

namespace {

using Clock = std::chrono::steady_clock;

constexpr int kFaqEntries = 150;  // about 20 KB of reply

struct Figures {
  double callsPerSecond = 0;
  double p50Us = 0;
  double p99Us = 0;
  long errors = 0;
  std::uint64_t checksum = 0;
};

std::uint64_t mix(std::uint64_t sum, std::string_view text) {
  for (unsigned char c : text) sum = sum * 1099511628211ull + c;
  return sum;
}

// Runs `call` `calls` times over `threads` threads; each call returns its checksum or throws.
Figures measure(int calls, int threads, const std::function<std::function<std::uint64_t()>()>& perThread) {
  std::vector<std::vector<double>> latencies(static_cast<std::size_t>(threads));
  std::atomic<long> errors{0};
  std::atomic<std::uint64_t> checksum{0};
  std::vector<std::thread> pool;
  const auto start = Clock::now();
  for (int t = 0; t < threads; ++t) {
    pool.emplace_back([&, t] {
      auto call = perThread();
      auto& mine = latencies[static_cast<std::size_t>(t)];
      for (int i = t; i < calls; i += threads) {
        const auto before = Clock::now();
        try {
          checksum += call();
        } catch (const std::exception& e) {
          if (errors++ == 0) std::fprintf(stderr, "qb_load: %s\n", e.what());
        }
        mine.push_back(std::chrono::duration<double, std::micro>(Clock::now() - before).count());
      }
    });
  }
  for (auto& thread : pool) thread.join();
  const double seconds = std::chrono::duration<double>(Clock::now() - start).count();
  std::vector<double> all;
  for (const auto& mine : latencies) all.insert(all.end(), mine.begin(), mine.end());
  std::sort(all.begin(), all.end());
  auto at = [&](double q) { return all.empty() ? 0.0 : all[static_cast<std::size_t>(q * (all.size() - 1))]; };
  return {calls / seconds, at(0.50), at(0.99), errors.load(), checksum.load()};
}

std::size_t collect(char* data, std::size_t size, std::size_t count, void* out) {
  static_cast<std::string*>(out)->append(data, size * count);
  return size * count;
}

void print(const char* name, const Figures& f) {
  std::printf("%-34s %10.0f calls/s   p50 %7.0f us   p99 %7.0f us   errors %ld\n", name, f.callsPerSecond, f.p50Us,
              f.p99Us, f.errors);
}

}  // namespace

int main(int argc, char** argv) {
  const int calls = argc > 1 ? std::max(1, std::atoi(argv[1])) : 4000;
  const int threads = argc > 2 ? std::max(1, std::atoi(argv[2])) : 8;
  curl_global_init(CURL_GLOBAL_DEFAULT);
  qb::mock::Service service;
  service.start(0);
  const std::string base = service.baseUrl();

  qb::host::Client client({.baseUrl = base, .allowInsecureLoopback = true});
  auto init = qb::QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, qb::JsonValue("US"));
  client.send(*init);
  const std::string token(init->accessToken()->as_string());
  client.setAccessToken(token);
  {
    // The reply size: get_faq answers kFaqEntries entries from now on.
    auto transport = qb::host::makeCurlTransport();
    const auto set = transport->send({.method = "POST",
                                      .url = base + "_mock/faq",
                                      .contentType = "application/json",
                                      .body = "{\"count\": " + std::to_string(kFaqEntries) + "}"});
    if (set.status != 200) {
      std::fprintf(stderr, "qb_load: the mock refused the FAQ size: %s\n", set.body.str().c_str());
      return 1;
    }
  }
  const qb::UserGetFaqRequest request{.languageCode = qb::LanguageCode::en, .deviceType = qb::DeviceType::ios};
  const std::string url = base + "v3/user/get_faq?language_code=0&device_type=1";

  auto library = [&] {
    return [&]() -> std::uint64_t {
      std::uint64_t sum = 0;
      for (const auto& faq : client.send(request).faqs) {
        sum = mix(mix(sum, faq.title), faq.content) + static_cast<std::uint64_t>(faq.faqType);
      }
      return sum;
    };
  };
  auto byHand = [&] {
    // One easy handle per thread, kept (and so its connection) for every call, as a careful app would.
    struct Handle {
      CURL* curl = curl_easy_init();
      curl_slist* headers = nullptr;
      ~Handle() {
        curl_slist_free_all(headers);
        curl_easy_cleanup(curl);
      }
    };
    auto handle = std::make_shared<Handle>();
    handle->headers = curl_slist_append(nullptr, ("Authorization: Bearer " + token).c_str());
    return [&url, handle]() -> std::uint64_t {
      std::string body;
      CURL* curl = handle->curl;
      curl_easy_setopt(curl, CURLOPT_URL, url.c_str());
      curl_easy_setopt(curl, CURLOPT_HTTPHEADER, handle->headers);
      curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
      curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &collect);
      curl_easy_setopt(curl, CURLOPT_WRITEDATA, &body);
      if (const CURLcode code = curl_easy_perform(curl); code != CURLE_OK) {
        throw std::runtime_error(curl_easy_strerror(code));
      }
      long status = 0;
      curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &status);
      if (status != 200) throw std::runtime_error("HTTP status " + std::to_string(status));
      std::uint64_t sum = 0;
      const nlohmann::json reply = nlohmann::json::parse(body);
      for (const auto& faq : reply.at("faqs")) {
        sum = mix(mix(sum, faq.at("title").get<std::string>()), faq.at("content").get<std::string>()) +
              faq.at("faq_type").get<std::uint64_t>();
      }
      return sum;
    };
  };

  // A short warm-up of each, then the measured runs.
  measure(threads * 10, threads, library);
  measure(threads * 10, threads, byHand);
  const Figures ours = measure(calls, threads, library);
  const Figures theirs = measure(calls, threads, byHand);
  std::printf("get_faq, %d entries, %d calls over %d threads, keep-alive, against the mock on loopback\n", kFaqEntries,
              calls, threads);
  print("qb::host::Client, Typed face", ours);
  print("libcurl easy + nlohmann::json", theirs);
  if (ours.checksum != theirs.checksum) {
    std::fprintf(stderr, "qb_load: the two read different replies (checksums %llu and %llu)\n",
                 static_cast<unsigned long long>(ours.checksum), static_cast<unsigned long long>(theirs.checksum));
    return 1;
  }
  std::printf("qb-load: %.2f times the calls per second of libcurl + nlohmann (p99 %.0f us against %.0f us)\n",
              ours.callsPerSecond / theirs.callsPerSecond, ours.p99Us, theirs.p99Us);
  return ours.errors == 0 && theirs.errors == 0 ? 0 : 1;
}
