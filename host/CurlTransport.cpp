#include <curl/curl.h>

#include <array>
#include <mutex>

#include <QBComponentAPI/host/Client.hpp>

#include "Url.hpp"

namespace qb::host {
namespace {

// One connection cache (and DNS cache) for every thread, guarded by a lock per kind of shared data.
class CurlShare {
 public:
  CurlShare() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    share_ = curl_share_init();
    curl_share_setopt(share_, CURLSHOPT_SHARE, CURL_LOCK_DATA_CONNECT);
    curl_share_setopt(share_, CURLSHOPT_SHARE, CURL_LOCK_DATA_DNS);
    curl_share_setopt(share_, CURLSHOPT_LOCKFUNC, &CurlShare::lock);
    curl_share_setopt(share_, CURLSHOPT_UNLOCKFUNC, &CurlShare::unlock);
    curl_share_setopt(share_, CURLSHOPT_USERDATA, this);
  }
  ~CurlShare() { curl_share_cleanup(share_); }
  CurlShare(const CurlShare&) = delete;
  CurlShare& operator=(const CurlShare&) = delete;
  CURLSH* handle() const { return share_; }

 private:
  static void lock(CURL*, curl_lock_data data, curl_lock_access, void* self) {
    static_cast<CurlShare*>(self)->locks_[static_cast<std::size_t>(data) % 8].lock();
  }
  static void unlock(CURL*, curl_lock_data data, void* self) {
    static_cast<CurlShare*>(self)->locks_[static_cast<std::size_t>(data) % 8].unlock();
  }
  CURLSH* share_;
  std::array<std::mutex, 8> locks_;
};

std::size_t collect(char* data, std::size_t size, std::size_t count, void* out) {
  static_cast<std::string*>(out)->append(data, size * count);
  return size * count;
}

class CurlTransport final : public Transport {
 public:
  HttpResponse send(const HttpRequest& request) override {
    CURL* curl = curl_easy_init();
    if (!curl) throw TransportError("libcurl could not start a transfer");
    struct Cleanup {
      CURL* curl;
      curl_slist* headers = nullptr;
      ~Cleanup() {
        curl_slist_free_all(headers);
        curl_easy_cleanup(curl);
      }
    } cleanup{curl};
    for (const auto& [name, value] : request.headers) {
      cleanup.headers = curl_slist_append(cleanup.headers, (name + ": " + value).c_str());
    }
    if (!request.contentType.empty()) {
      cleanup.headers = curl_slist_append(cleanup.headers, ("Content-Type: " + request.contentType).c_str());
    }
    cleanup.headers = curl_slist_append(cleanup.headers, "Expect:");
    HttpResponse response;
    curl_easy_setopt(curl, CURLOPT_SHARE, share_.handle());
    curl_easy_setopt(curl, CURLOPT_URL, request.url.c_str());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, cleanup.headers);
    curl_easy_setopt(curl, CURLOPT_NOSIGNAL, 1L);
    // Only HTTP and HTTPS, whatever URL arrives; redirects are not followed, and would be held to the same.
#if LIBCURL_VERSION_NUM >= 0x075500
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS_STR, "http,https");
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS_STR, "http,https");
#else
    curl_easy_setopt(curl, CURLOPT_PROTOCOLS, CURLPROTO_HTTP | CURLPROTO_HTTPS);
    curl_easy_setopt(curl, CURLOPT_REDIR_PROTOCOLS, CURLPROTO_HTTP | CURLPROTO_HTTPS);
#endif
    curl_easy_setopt(curl, CURLOPT_TIMEOUT_MS, static_cast<long>(request.timeout.count()));
    curl_easy_setopt(curl, CURLOPT_CONNECTTIMEOUT_MS, static_cast<long>(request.timeout.count()));
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &collect);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &response.body);
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "");
    if (request.method == "POST") {
      curl_easy_setopt(curl, CURLOPT_POST, 1L);
      curl_easy_setopt(curl, CURLOPT_POSTFIELDS, request.body.data());
      curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
    }
    const CURLcode code = curl_easy_perform(curl);
    if (code != CURLE_OK) {
      // Headers (and so the token) never appear in the message, nor the URL's user info and query.
      throw TransportError(std::string(curl_easy_strerror(code)) + " (" + request.method + " " +
                           url::redact(request.url) + ")");
    }
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &response.status);
    return response;
  }

 private:
  CurlShare share_;
};

}  // namespace

std::shared_ptr<Transport> makeCurlTransport() { return std::make_shared<CurlTransport>(); }

}  // namespace qb::host
