#include <QBComponentAPI/frame/detail/Utf8.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <algorithm>
#include <cmath>
#include <random>
#include <thread>

#include "Url.hpp"

namespace qb::host {
namespace {

std::string percentEncode(std::string_view text) {
  static constexpr char kHex[] = "0123456789ABCDEF";
  std::string out;
  out.reserve(text.size());
  for (unsigned char c : text) {
    // By ASCII class, not std::isalnum: under a single-byte locale that would pass bytes such as 0xE9 raw.
    const bool unreserved = (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || c == '-' ||
                            c == '_' || c == '.' || c == '~';
    if (unreserved) {
      out += static_cast<char>(c);
    } else {
      out += '%';
      out += kHex[c >> 4];
      out += kHex[c & 0xF];
    }
  }
  return out;
}

std::string formEncode(const JsonMap& params) {
  std::string out;
  for (const auto& member : params) {
    if (!out.empty()) out += '&';
    out += percentEncode(member.key());
    out += '=';
    out += percentEncode(parameterText(member.value()));
  }
  return out;
}

// CR or LF would end a header and begin one of the sender's choosing; NUL would cut it short. The value itself
// stays out of the message: it may be the token.
void checkHeaderValue(std::string_view what, std::string_view value) {
  if (value.find_first_of(std::string_view("\r\n\0", 3)) != std::string_view::npos) {
    throw InvalidHeaderError(std::string(what) + " holds a CR, LF or NUL byte and cannot travel in a header");
  }
}

// A reply body as an error message may show it: control bytes, DEL and bytes that are not UTF-8 as \xHH,
// so that a hostile body cannot drive the terminal or log it is printed to.
std::string printable(std::string_view body) {
  static constexpr char kHex[] = "0123456789abcdef";
  std::string out;
  out.reserve(body.size());
  while (!body.empty()) {
    const auto c = static_cast<unsigned char>(body.front());
    std::size_t length = c >= 0x20 && c < 0x7f ? 1 : c >= 0x80 ? detail::utf8Sequence(body).length : 0;
    if (length == 0) {
      out += "\\x";
      out += kHex[c >> 4];
      out += kHex[c & 0xF];
      length = 1;
    } else {
      out.append(body.substr(0, length));
    }
    body.remove_prefix(length);
  }
  return out;
}

bool retryableStatus(long status) { return status == 429 || status == 502 || status == 503 || status == 504; }

// Bounds on the durations a call adds to the clock, so that none overflows a time point whatever the options.
constexpr std::chrono::milliseconds kLongestWait = std::chrono::hours(24);
constexpr std::chrono::milliseconds kLongestDeadline = std::chrono::hours(24 * 365);

// What an observer may see of a URL: its path, without scheme, host, user info, query or fragment.
std::string urlPath(std::string_view url) {
  url = url.substr(0, url.find_first_of("?#"));
  const auto schemeEnd = url.find("://");
  const auto slash = url.find('/', schemeEnd == std::string_view::npos ? 0 : schemeEnd + 3);
  return slash == std::string_view::npos ? "/" : std::string(url.substr(slash));
}

}  // namespace

HttpError::HttpError(long status, std::string body, std::optional<std::chrono::seconds> retryAfter)
    : HostError("HTTP status " + std::to_string(status) + ": " + printable(std::string_view(body).substr(0, 512))),
      status_(status),
      body_(std::move(body)),
      retryAfter_(retryAfter) {
  if (body_.size() > kKeptBodyBytes) {
    body_.resize(kKeptBodyBytes);
    body_.shrink_to_fit();
  }
  // Read once here, so that the accessors are plain. Any body may come back (an HTML error page, a proxy's
  // text, nothing): a body that is not JSON leaves both unset rather than throwing.
  JsonValue reply;
  try {
    reply = parseJson(body_);
  } catch (const qb::Error&) {
    return;
  }
  const JsonMap* object = reply.if_object();
  if (!object) return;
  auto text = [&](std::string_view key) -> std::optional<std::string> {
    const JsonValue* value = object->if_contains(key);
    if (!value || !value->is_string()) return std::nullopt;
    return std::string(value->get_string());
  };
  error_ = text("error");
  message_ = text("message");
}

std::string parameterText(const JsonValue& value) {
  return value.is_string() ? std::string(value.get_string()) : toJson(value);
}

Client::Client(ClientOptions options, std::shared_ptr<Transport> transport)
    : options_(std::move(options)), transport_(transport ? std::move(transport) : makeCurlTransport()) {}

void Client::setAccessToken(std::optional<std::string> token) {
  if (token) checkHeaderValue("The access token", *token);
  std::lock_guard lock(mutex_);
  token_ = std::move(token);
}

bool Client::hasAccessToken() const {
  std::lock_guard lock(mutex_);
  return token_.has_value();
}

HttpRequest Client::prepare(std::string_view api, std::string_view verb, bool forceHttps, bool needAuth,
                            bool mustAuth) const {
  const std::string_view base = options_.baseUrl;
  const std::optional<url::Parts> parts = url::parse(base);
  if (!parts) throw InvalidUrlError("The base URL is not an absolute http or https URL: " + url::redact(base));
  // Plain http only to this machine, decided on the parsed host: "127.0.0.1.example.com" is not loopback.
  if (forceHttps && parts->scheme != "https" && !(options_.allowInsecureLoopback && url::isLoopback(*parts))) {
    throw InsecureUrlError("Refusing to send over a URL that is not https: " + url::redact(base));
  }
  HttpRequest http;
  http.method = verb == "get" || verb == "GET" ? "GET" : "POST";
  http.url = std::string(base);
  if (!http.url.empty() && http.url.back() != '/') http.url += '/';
  http.url += api;
  http.timeout = options_.timeout;
  http.maxReplyBytes = options_.maxReplyBytes;
  std::lock_guard lock(mutex_);
  if (needAuth && token_) {
    http.headers.emplace_back("Authorization", "Bearer " + *token_);
  } else if (mustAuth) {
    throw AuthRequiredError("\"" + std::string(api) + "\" needs a session and no access token is set");
  }
  return http;
}

void Client::appendQuery(HttpRequest& http, const JsonMap& params) {
  if (params.empty()) return;
  http.url += '?';
  http.url += formEncode(params);
}

void Client::multipart(HttpRequest& http, const JsonMap& fields, const std::vector<Part>& parts) {
  thread_local std::mt19937_64 random{std::random_device{}()};
  const std::string boundary = "qb-" + std::to_string(random()) + std::to_string(random());
  std::string& body = http.body;
  for (const auto& member : fields) {
    body += "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + std::string(member.key()) + "\"\r\n\r\n" +
            parameterText(member.value()) + "\r\n";
  }
  for (const auto& member : fields) checkHeaderValue("A form field's name", member.key());
  for (const auto& part : parts) {
    checkHeaderValue("A part's field name", part.field);
    checkHeaderValue("A part's file name", part.fileName);
    checkHeaderValue("A part's content type", part.contentType);
  }
  for (const auto& part : parts) {
    body += "--" + boundary + "\r\nContent-Disposition: form-data; name=\"" + part.field + "\"; filename=\"" +
            part.fileName + "\"\r\nContent-Type: " + part.contentType + "\r\n\r\n";
    body.append(reinterpret_cast<const char*>(part.data.data()), part.data.size());
    body += "\r\n";
  }
  body += "--" + boundary + "--\r\n";
  http.contentType = "multipart/form-data; boundary=" + boundary;
}

std::vector<Client::Part> Client::typedParts(const std::vector<APIMimeBody>& bodies) {
  std::vector<Part> parts;
  for (const auto& b : bodies) parts.push_back({b.name, b.fileName, b.contentType, b.file.data});
  return parts;
}

std::optional<std::chrono::milliseconds> Client::retryDelay(int retry,
                                                            std::optional<std::chrono::seconds> retryAfter) const {
  using std::chrono::milliseconds;
  const milliseconds cap = std::clamp(options_.maxBackoff, milliseconds(0), kLongestWait);
  // Compared in whole seconds, so that no Retry-After, however large, overflows a conversion.
  if (retryAfter && *retryAfter > std::chrono::duration_cast<std::chrono::seconds>(cap)) return std::nullopt;
  // backoff * 2^(retry - 1), doubled a step at a time so that it stops at the cap instead of overflowing.
  milliseconds delay = std::clamp(options_.backoff, milliseconds(0), cap);
  for (int i = 1; i < retry && delay < cap; ++i) delay = delay > cap / 2 ? cap : delay * 2;
  thread_local std::mt19937 random{std::random_device{}()};
  std::uniform_real_distribution<double> jitter(0.5, 1.5);
  const double jittered =
      std::min(static_cast<double>(delay.count()) * jitter(random), static_cast<double>(cap.count()));
  delay = milliseconds(std::llround(jittered));
  if (retryAfter) delay = std::max(delay, milliseconds(std::max(*retryAfter, std::chrono::seconds(0))));
  return delay;
}

PaddedBytes Client::exchange(HttpRequest& http) {
  using Clock = std::chrono::steady_clock;
  using std::chrono::milliseconds;
  // Every header this client built, checked once more where they leave it.
  for (const auto& [name, value] : http.headers) checkHeaderValue("The " + name + " header", value);
  checkHeaderValue("The content type", http.contentType);
  // Only GET is repeated: a POST that may have reached the service is never sent twice.
  const int retries = http.method == "GET" ? std::clamp(options_.maxRetries, 0, ClientOptions::kMaxRetries) : 0;
  // Without a deadline, a time no call reaches.
  const Clock::time_point end = options_.deadline
                                    ? Clock::now() + std::clamp(*options_.deadline, milliseconds(1), kLongestDeadline)
                                    : Clock::time_point::max();
  const milliseconds timeout = std::max(options_.timeout, milliseconds(1));
  const std::string path = options_.observer ? urlPath(http.url) : std::string();
  for (int attempt = 1;; ++attempt) {
    const Clock::time_point began = Clock::now();
    // A timeout of zero would be none at all to a transport: an attempt always gets at least a millisecond.
    http.timeout = options_.deadline
                       ? std::clamp(std::chrono::duration_cast<milliseconds>(end - began), milliseconds(1), timeout)
                       : timeout;
    Attempt seen{.method = http.method, .path = path, .number = attempt};
    auto observe = [&] {
      if (!options_.observer) return;
      seen.duration = std::chrono::duration_cast<std::chrono::microseconds>(Clock::now() - began);
      options_.observer(seen);
    };
    std::optional<TransportError> failure;
    HttpResponse response;
    try {
      response = transport_->send(http);
      seen.status = response.status;
      seen.bytesReceived = response.bytesReceived;
    } catch (const TransportError& error) {
      failure = error;
      seen.failure = error.what();
    } catch (const ReplyTooLargeError& error) {
      seen.failure = error.what();
      seen.bytesReceived = error.received();
      observe();
      throw;
    }
    observe();
    if (!failure && response.status >= 200 && response.status < 300) return std::move(response.body);

    const bool transient = failure ? failure->transient() : retryableStatus(response.status);
    std::optional<milliseconds> wait;
    if (transient && attempt <= retries) wait = retryDelay(attempt, failure ? std::nullopt : response.retryAfter);
    // No retry that could not begin before the deadline.
    if (wait && options_.deadline && Clock::now() + *wait >= end) wait.reset();
    if (!wait) {
      if (failure) throw *failure;
      throw HttpError(response.status, response.body.str(), response.retryAfter);
    }
    std::this_thread::sleep_for(*wait);
  }
}

PaddedBytes Client::payload(PaddedBytes body) const {
  if (!options_.envelopeKey) return body;
  const JsonMap whole = parseJsonMap(body);
  const JsonValue* inner = whole.if_contains(*options_.envelopeKey);
  if (!inner || !inner->is_object()) {
    throw DecodingError(DecodingError::Kind::keyNotFound, {*options_.envelopeKey},
                        "The reply has no object under the envelope key \"" + *options_.envelopeKey + "\".");
  }
  return toJson(*inner);
}

QBMessageBase& Client::send(QBMessageBase& message) {
  HttpRequest http =
      prepare(message.api(), message.methods().front(), message.forceHttps(), message.needAuth(), message.mustAuth());
  const JsonMap params = message.getParams();
  const auto bodies = message.mimeBodies();
  if (http.method == "GET") {
    appendQuery(http, params);
  } else if (!bodies.empty()) {
    std::vector<Part> parts;
    for (const auto& b : bodies) parts.push_back({b.fieldName, b.fileName, b.contentType, b.data});
    multipart(http, params, parts);
  } else {
    http.body = formEncode(params);
    http.contentType = "application/x-www-form-urlencoded";
  }
  return message.parseResponseBytes(payload(exchange(http)));
}

}  // namespace qb::host
