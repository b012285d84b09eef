// qb::host::Client: sends the library's messages and requests over HTTP.
#pragma once

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/frame/QBMessageBase.hpp>
#include <QBComponentAPI/host/Transport.hpp>
#include <chrono>
#include <cstddef>
#include <functional>
#include <memory>
#include <mutex>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace qb::host {

/// Every failure of the host itself derives from HostError, and so from qb::Error like the library's own
/// errors (ParameterCheckFailException, DecodingError, EncodingError, JsonTypeError), which reach the
/// caller unchanged: one `catch (const qb::Error&)` catches everything a send can throw but std::bad_alloc.
class HostError : public qb::Error {
 public:
  using qb::Error::Error;
};
/// The service answered with a status other than 2xx.
class HttpError : public HostError {
 public:
  /// The most of an error body an HttpError keeps (and the curl transport receives into memory): the
  /// service's explanation or the start of an error page, never a hostile server's megabytes.
  static constexpr std::size_t kKeptBodyBytes = 4096;

  HttpError(long status, std::string body, std::optional<std::chrono::seconds> retryAfter = std::nullopt);
  long status() const noexcept { return status_; }
  /// The first kKeptBodyBytes of the reply body.
  const std::string& body() const noexcept { return body_; }
  /// The service's explanation, when the body is a JSON object with these members as strings:
  /// {"error": "wrong_password", "message": "the password does not match"}. Otherwise std::nullopt.
  const std::optional<std::string>& error() const noexcept { return error_; }
  const std::optional<std::string>& message() const noexcept { return message_; }
  /// How long the service asked to be left alone (Retry-After), when it said.
  const std::optional<std::chrono::seconds>& retryAfter() const noexcept { return retryAfter_; }

 private:
  long status_;
  std::string body_;
  std::optional<std::string> error_;
  std::optional<std::string> message_;
  std::optional<std::chrono::seconds> retryAfter_;
};
/// No answer: connection refused or dropped, time-out, name resolution, TLS. Raised by transports.
class TransportError : public HostError {
 public:
  explicit TransportError(const std::string& message, bool transient = true)
      : HostError(message), transient_(transient) {}
  /// Whether the same request may succeed if sent again: a refused, reset or dropped connection, a time-out,
  /// a name that did not resolve. Not a TLS failure (a certificate that does not verify), nor a URL or scheme
  /// the transport cannot use. A transport that does not say is taken as transient.
  bool transient() const noexcept { return transient_; }

 private:
  bool transient_;
};
/// The reply passed ClientOptions::maxReplyBytes (counted after decoding); receiving stopped there.
class ReplyTooLargeError : public HostError {
 public:
  ReplyTooLargeError(const std::string& message, std::size_t limit, std::size_t received)
      : HostError(message), limit_(limit), received_(received) {}
  std::size_t limit() const noexcept { return limit_; }
  /// The body bytes taken in before receiving stopped: at most the limit.
  std::size_t received() const noexcept { return received_; }

 private:
  std::size_t limit_;
  std::size_t received_;
};
/// The endpoint insists on a session and the app has set no access token; nothing was sent.
class AuthRequiredError : public HostError {
 public:
  using HostError::HostError;
};
/// The base URL is not https (and is not loopback with insecure loopback allowed); nothing was sent.
class InsecureUrlError : public HostError {
 public:
  using HostError::HostError;
};
/// A header value (the access token, a multipart part's name, file name or type) holds CR, LF or NUL, which
/// would end the header and start another; nothing was sent.
class InvalidHeaderError : public HostError {
 public:
  using HostError::HostError;
};
/// The base URL is not an absolute http or https URL that a path can be appended to (a malformed host or
/// port, a query or fragment, spaces or control bytes); nothing was sent.
class InvalidUrlError : public HostError {
 public:
  using HostError::HostError;
};

/// One attempt of a call, as ClientOptions::observer sees it. It never holds the token, another header or a
/// body.
struct Attempt {
  std::string method;                    ///< "GET" or "POST"
  std::string path;                      ///< the URL's path: no scheme, host, user info or query
  int number = 1;                        ///< 1 for a call's first attempt, 2 for its first retry, ...
  long status = 0;                       ///< the reply's HTTP status; 0 when no reply came
  std::string failure{};                 ///< why no usable reply came (the error's text); empty with a status
  std::size_t bytesReceived = 0;         ///< reply body bytes, after decoding
  std::chrono::microseconds duration{};  ///< from sending to the reply or the failure
};

struct ClientOptions {
  /// The most retries a client makes, whatever maxRetries says.
  static constexpr int kMaxRetries = 10;

  std::string baseUrl;                       ///< "https://api.example.com/" (the path "v3/..." is appended)
  bool allowInsecureLoopback = false;        ///< accept http:// for 127.0.0.0/8 (dotted quad), localhost and [::1]
  std::chrono::milliseconds timeout{15000};  ///< for one attempt, connecting included
  /// Extra attempts for GET (never POST) on transient transport failures (TransportError::transient()) and
  /// on 429/502/503/504; clamped to 0..kMaxRetries.
  int maxRetries = 2;
  std::chrono::milliseconds backoff{200};  ///< first retry delay; doubles each time, with ±50% jitter
  /// No wait between attempts is longer. A Retry-After the service sends is waited out when it is within
  /// this cap; a longer one ends the retries (the HttpError carries it).
  std::chrono::milliseconds maxBackoff{5000};
  /// For a whole call, every attempt and wait included: each attempt's timeout is cut to what remains and no
  /// retry starts that could not begin before it. std::nullopt: only the per-attempt timeout bounds a call.
  std::optional<std::chrono::milliseconds> deadline = std::nullopt;
  /// The largest reply body accepted, counted after gzip/deflate decoding; a larger one fails the call with
  /// ReplyTooLargeError once this many bytes have arrived, without holding more.
  std::size_t maxReplyBytes = 64 * 1024 * 1024;
  std::optional<std::string> envelopeKey = std::nullopt;  ///< when replies wrap the result keys: {"data": {...}}
  /// Called after every attempt, on the thread that sends (so on several at once when threads share the
  /// client); what it throws reaches the caller of send.
  std::function<void(const Attempt&)> observer = nullptr;
};

class Collection;
struct CollectionOptions;

/// Thread-safe: one client may serve every thread of an app; the curl transport keeps connections open
/// between calls.
class Client {
 public:
  /// Uses the libcurl transport unless one is given.
  explicit Client(ClientOptions options, std::shared_ptr<Transport> transport = nullptr);

  /// The token attached to endpoints that need authentication; std::nullopt to sign out. Throws
  /// InvalidHeaderError, and keeps the token it had, when the token holds CR, LF or NUL.
  void setAccessToken(std::optional<std::string> token);
  bool hasAccessToken() const;

  /// The signed-in user's whole collection, page by page as it is iterated (host/Collection.hpp).
  Collection collection(CollectionOptions options);

  /// Sends a Dictionary-face message and fills it with parseResponse. Returns the message.
  QBMessageBase& send(QBMessageBase& message);

  /// Sends a Typed-face request and returns its decoded response record.
  template <APIEncodableRequest Request>
  typename Request::Response send(const Request& request, const JSONDecoder& decoder = {}) {
    HttpRequest http =
        prepare(request.api(), request.methods().front(), request.forceHttps(), request.needAuth(), request.mustAuth());
    const bool get = http.method == "GET";
    if (get || !request.mimeBodies().empty()) {
      const JsonValue encoded = JsonValueEncoder{.dateStrategy = decoder.dateStrategy}.encode(request);
      if (get) {
        appendQuery(http, encoded.as_object());
      } else {
        multipart(http, encoded.as_object(), typedParts(request.mimeBodies()));
      }
    } else {
      http.body = request.parseParamater(JSONEncoder{.dateStrategy = decoder.dateStrategy});
      http.contentType = "application/json";
    }
    // The reply goes to the decoder as it was received, padding included: no copy.
    const PaddedBytes reply = payload(exchange(http));
    return Request::Response::init(reply, decoder);
  }

 private:
  struct Part {
    std::string field, fileName, contentType;
    std::vector<std::byte> data;
  };
  static std::vector<Part> typedParts(const std::vector<APIMimeBody>& bodies);

  HttpRequest prepare(std::string_view api, std::string_view verb, bool forceHttps, bool needAuth, bool mustAuth) const;
  static void appendQuery(HttpRequest& http, const JsonMap& params);
  static void multipart(HttpRequest& http, const JsonMap& fields, const std::vector<Part>& parts);
  PaddedBytes exchange(HttpRequest& http);
  /// The wait before retry number `retry` (1 for the first), or std::nullopt when the service asked for a
  /// longer one than maxBackoff.
  std::optional<std::chrono::milliseconds> retryDelay(int retry, std::optional<std::chrono::seconds> retryAfter) const;
  /// The reply bytes the records read: the whole body, or the member under the envelope key.
  PaddedBytes payload(PaddedBytes body) const;

  ClientOptions options_;
  std::shared_ptr<Transport> transport_;
  mutable std::mutex mutex_;
  std::optional<std::string> token_;
};

/// The text a parameter travels as in a query string or form: strings as they are, anything else as JSON.
std::string parameterText(const JsonValue& value);

}  // namespace qb::host
