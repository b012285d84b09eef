#include <curl/curl.h>

#include <QBComponentAPI/host/Client.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <ctime>
#include <exception>
#include <limits>
#include <mutex>
#include <string_view>
#include <vector>

#include "Url.hpp"

namespace qb::host {
namespace {

// The DNS cache and TLS sessions, shared by every handle of a transport whichever thread runs it, each
// kind of data under its own lock. Connections are not shared: libcurl does not support a connection
// cache shared between threads, so each handle keeps its own (see CurlTransport).
class CurlShare {
 public:
  CurlShare() {
    static std::once_flag once;
    std::call_once(once, [] { curl_global_init(CURL_GLOBAL_DEFAULT); });
    share_ = curl_share_init();
    if (!share_) return;
    curl_share_setopt(share_, CURLSHOPT_LOCKFUNC, &CurlShare::lock);
    curl_share_setopt(share_, CURLSHOPT_UNLOCKFUNC, &CurlShare::unlock);
    curl_share_setopt(share_, CURLSHOPT_USERDATA, this);
    curl_share_setopt(share_, CURLSHOPT_SHARE, CURL_LOCK_DATA_DNS);
    curl_share_setopt(share_, CURLSHOPT_SHARE, CURL_LOCK_DATA_SSL_SESSION);
  }
  ~CurlShare() { curl_share_cleanup(share_); }
  CurlShare(const CurlShare&) = delete;
  CurlShare& operator=(const CurlShare&) = delete;
  CURLSH* handle() const { return share_; }

 private:
  static void lock(CURL*, curl_lock_data data, curl_lock_access, void* self) {
    static_cast<CurlShare*>(self)->locks_[static_cast<std::size_t>(data) % kLocks].lock();
  }
  static void unlock(CURL*, curl_lock_data data, void* self) {
    static_cast<CurlShare*>(self)->locks_[static_cast<std::size_t>(data) % kLocks].unlock();
  }
  static constexpr std::size_t kLocks = 8;
  CURLSH* share_;
  std::array<std::mutex, kLocks> locks_;
};

// Failures that may pass if the request is sent again. Everything else (TLS and certificate failures, a URL
// or protocol libcurl refuses, an aborted write) would fail the same way again.
bool transient(CURLcode code) {
  switch (code) {
    case CURLE_COULDNT_RESOLVE_HOST:
    case CURLE_COULDNT_RESOLVE_PROXY:
    case CURLE_COULDNT_CONNECT:
    case CURLE_OPERATION_TIMEDOUT:
    case CURLE_SEND_ERROR:
    case CURLE_RECV_ERROR:
    case CURLE_GOT_NOTHING:
    case CURLE_PARTIAL_FILE:
    case CURLE_HTTP2:
    case CURLE_HTTP2_STREAM: return true;
    default: return false;
  }
}

bool startsWithNoCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    const char c = text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
    if (c != prefix[i]) return false;
  }
  return true;
}

// Retry-After as delta-seconds or as an HTTP date; std::nullopt when it is neither.
std::optional<std::chrono::seconds> parseRetryAfter(std::string_view value) {
  while (!value.empty() && (value.front() == ' ' || value.front() == '\t')) value.remove_prefix(1);
  while (!value.empty() &&
         (value.back() == ' ' || value.back() == '\t' || value.back() == '\r' || value.back() == '\n')) {
    value.remove_suffix(1);
  }
  if (value.empty()) return std::nullopt;
  constexpr std::int64_t kLongest = std::numeric_limits<std::int32_t>::max();
  if (value.find_first_not_of("0123456789") == std::string_view::npos) {
    std::int64_t seconds = 0;
    const auto [end, error] = std::from_chars(value.data(), value.data() + value.size(), seconds);
    return std::chrono::seconds(error == std::errc() && end == value.data() + value.size() ? std::min(seconds, kLongest)
                                                                                           : kLongest);
  }
  const std::time_t when = curl_getdate(std::string(value).c_str(), nullptr);
  if (when == -1) return std::nullopt;
  const std::int64_t wait = static_cast<std::int64_t>(when) - static_cast<std::int64_t>(std::time(nullptr));
  return std::chrono::seconds(std::clamp<std::int64_t>(wait, 0, kLongest));
}

// What the callbacks of one exchange write to. They run inside curl_easy_perform, in C: nothing may be
// thrown through them, so they keep what went wrong here, and send() reports it once libcurl has returned.
struct Reception {
  CURL* curl;
  std::size_t limit;
  HttpResponse& response;
  bool tooLarge = false;
  std::exception_ptr error{};

  // Body bytes as libcurl hands them over, after gzip or deflate decoding: the limit holds for what the
  // reply inflates to, and receiving stops at it rather than after it.
  static std::size_t body(char* data, std::size_t size, std::size_t count, void* self) noexcept {
    auto& r = *static_cast<Reception*>(self);
    const std::size_t n = size * count;
    try {
      if (n > r.limit - r.response.bytesReceived) {
        r.tooLarge = true;
        return 0;  // anything but n aborts the transfer
      }
      r.response.bytesReceived += n;
      long status = 0;
      curl_easy_getinfo(r.curl, CURLINFO_RESPONSE_CODE, &status);
      PaddedBytes& kept = r.response.body;
      const bool success = status >= 200 && status < 300;
      // A declared length sizes the buffer once, instead of regrowing it (and copying what it holds)
      // as the chunks arrive. The limit was checked against the declared length before the body.
      if (success && kept.empty()) {
        curl_off_t length = -1;
        if (curl_easy_getinfo(r.curl, CURLINFO_CONTENT_LENGTH_DOWNLOAD_T, &length) == CURLE_OK && length > 0) {
          kept.reserve(std::min(static_cast<std::size_t>(length), r.limit));
        }
      }
      const std::size_t room =
          success ? n : HttpError::kKeptBodyBytes - std::min(kept.size(), HttpError::kKeptBodyBytes);
      kept.append(std::string_view(data, std::min(n, room)));
      return n;
    } catch (...) {
      r.error = std::current_exception();
      return 0;
    }
  }

  static std::size_t header(char* data, std::size_t size, std::size_t count, void* self) noexcept {
    auto& r = *static_cast<Reception*>(self);
    const std::string_view line(data, size * count);
    try {
      if (line.starts_with("HTTP/")) {
        r.response.retryAfter.reset();  // the headers of a new response (after an interim 1xx)
      } else if (startsWithNoCase(line, "retry-after:")) {
        r.response.retryAfter = parseRetryAfter(line.substr(12));
      }
      return size * count;
    } catch (...) {
      r.error = std::current_exception();
      return 0;
    }
  }
};

// The body of a POST, handed to libcurl as it asks. A POST goes out at most once: when a reused connection
// closes after the request went out and before any reply byte, libcurl sends the request again on a new
// connection, rewinding the body through the seek callback first, and this one refuses, which fails the
// transfer instead. (A POST on a connection of its own every time would do as well, at the price of a
// connect, and a TLS handshake, per POST, and of connections held open in pairs.)
struct Upload {
  std::string_view body;
  std::size_t sent = 0;
  bool refused = false;

  static std::size_t read(char* buffer, std::size_t size, std::size_t count, void* self) noexcept {
    auto& u = *static_cast<Upload*>(self);
    const std::size_t n = std::min(size * count, u.body.size() - u.sent);
    std::memcpy(buffer, u.body.data() + u.sent, n);
    u.sent += n;
    return n;
  }
  static int seek(void* self, curl_off_t offset, int origin) noexcept {
    auto& u = *static_cast<Upload*>(self);
    if (offset == 0 && origin == SEEK_SET && u.sent == 0) return CURL_SEEKFUNC_OK;  // nothing has gone out
    u.refused = true;
    return CURL_SEEKFUNC_FAIL;
  }
};

// Handles are pooled: a call takes an idle one (or makes one) and gives it back after, so that its
// connections stay open for the next call, on whichever thread. A handle serves one thread at a time,
// which is all libcurl asks; its connection cache is its own, the one mode libcurl supports across threads.
class CurlTransport final : public Transport {
 public:
  CurlTransport() { idle_.reserve(kMaxIdle); }
  ~CurlTransport() override {
    for (CURL* curl : idle_) curl_easy_cleanup(curl);
  }
  CurlTransport(const CurlTransport&) = delete;
  CurlTransport& operator=(const CurlTransport&) = delete;

  HttpResponse send(const HttpRequest& request) override {
    struct Lease {
      CurlTransport& owner;
      CURL* curl;
      curl_slist* headers = nullptr;
      ~Lease() {
        curl_slist_free_all(headers);
        owner.release(curl);
      }
    } lease{*this, acquire()};
    CURL* curl = lease.curl;
    for (const auto& [name, value] : request.headers) {
      lease.headers = curl_slist_append(lease.headers, (name + ": " + value).c_str());
    }
    if (!request.contentType.empty()) {
      lease.headers = curl_slist_append(lease.headers, ("Content-Type: " + request.contentType).c_str());
    }
    lease.headers = curl_slist_append(lease.headers, "Expect:");
    HttpResponse response;
    Reception reception{.curl = curl, .limit = request.maxReplyBytes, .response = response};
    curl_easy_setopt(curl, CURLOPT_URL, request.url.c_str());
    curl_easy_setopt(curl, CURLOPT_HTTPHEADER, lease.headers);
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
    curl_easy_setopt(curl, CURLOPT_WRITEFUNCTION, &Reception::body);
    curl_easy_setopt(curl, CURLOPT_WRITEDATA, &reception);
    curl_easy_setopt(curl, CURLOPT_HEADERFUNCTION, &Reception::header);
    curl_easy_setopt(curl, CURLOPT_HEADERDATA, &reception);
    // The encodings zlib decodes and the size limit covers; not every one this libcurl knows.
    curl_easy_setopt(curl, CURLOPT_ACCEPT_ENCODING, "gzip, deflate");
    // A declared Content-Length over the limit fails before the body is read (0 would mean no limit).
    if (request.maxReplyBytes > 0 &&
        request.maxReplyBytes <= static_cast<std::size_t>(std::numeric_limits<curl_off_t>::max())) {
      curl_easy_setopt(curl, CURLOPT_MAXFILESIZE_LARGE, static_cast<curl_off_t>(request.maxReplyBytes));
    }
    Upload upload{.body = request.body};
    if (request.method == "POST") {
      curl_easy_setopt(curl, CURLOPT_POST, 1L);
      curl_easy_setopt(curl, CURLOPT_POSTFIELDSIZE_LARGE, static_cast<curl_off_t>(request.body.size()));
      if (request.body.empty()) {
        // Nothing to rewind, so nothing would stop a second copy: a new connection, which libcurl never
        // retries on.
        curl_easy_setopt(curl, CURLOPT_POSTFIELDS, "");
        curl_easy_setopt(curl, CURLOPT_FRESH_CONNECT, 1L);
      } else {
        curl_easy_setopt(curl, CURLOPT_READFUNCTION, &Upload::read);
        curl_easy_setopt(curl, CURLOPT_READDATA, &upload);
        curl_easy_setopt(curl, CURLOPT_SEEKFUNCTION, &Upload::seek);
        curl_easy_setopt(curl, CURLOPT_SEEKDATA, &upload);
      }
    }
    const CURLcode code = curl_easy_perform(curl);
    if (reception.error) std::rethrow_exception(reception.error);
    // Headers (and so the token) never appear in a message, nor the URL's user info and query.
    const std::string where = " (" + request.method + " " + url::redact(request.url) + ")";
    if (upload.refused) {
      throw TransportError(
          "The connection closed after the request was sent and before any reply; it is not sent "
          "again, as the service may have acted on it" +
          where);
    }
    if (reception.tooLarge || code == CURLE_FILESIZE_EXCEEDED) {
      throw ReplyTooLargeError(
          "The reply is larger than the limit of " + std::to_string(request.maxReplyBytes) + " bytes" + where,
          request.maxReplyBytes, response.bytesReceived);
    }
    if (code != CURLE_OK) throw TransportError(std::string(curl_easy_strerror(code)) + where, transient(code));
    curl_easy_getinfo(curl, CURLINFO_RESPONSE_CODE, &response.status);
    return response;
  }

 private:
  // At most this many idle handles are kept, each with its open connections; more are closed.
  static constexpr std::size_t kMaxIdle = 16;
  // A client talks to one service, so a handle needs one open connection (a new one replaces it).
  static constexpr long kConnectionsPerHandle = 1;

  CURL* acquire() {
    {
      std::lock_guard lock(mutex_);
      if (!idle_.empty()) {
        CURL* curl = idle_.back();
        idle_.pop_back();
        return curl;
      }
    }
    CURL* curl = curl_easy_init();
    if (!curl) throw TransportError("libcurl could not start a transfer", false);
    curl_easy_setopt(curl, CURLOPT_SHARE, share_.handle());
    curl_easy_setopt(curl, CURLOPT_MAXCONNECTS, kConnectionsPerHandle);
    return curl;
  }

  // Clears the handle's options (the request's pointers among them) but keeps its connections and share.
  void release(CURL* curl) noexcept {
    curl_easy_reset(curl);
    curl_easy_setopt(curl, CURLOPT_MAXCONNECTS, kConnectionsPerHandle);
    {
      std::lock_guard lock(mutex_);
      if (idle_.size() < kMaxIdle) {
        idle_.push_back(curl);  // within the reserved capacity: does not allocate
        return;
      }
    }
    curl_easy_cleanup(curl);
  }

  CurlShare share_;
  std::mutex mutex_;
  std::vector<CURL*> idle_;
};

}  // namespace

std::shared_ptr<Transport> makeCurlTransport() { return std::make_shared<CurlTransport>(); }

}  // namespace qb::host
