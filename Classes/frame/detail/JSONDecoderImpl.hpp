// The definition of qb::JSONDecoder::decode. Included only by the .cpp files that instantiate it for
// their record (QB_TYPED_DEFINE), because it brings in the parser's header.
#pragma once

#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/detail/JsonFault.hpp>
#include <QBComponentAPI/frame/detail/Simdjson.hpp>
#include <charconv>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif
#include <cstring>
#include <system_error>

namespace qb::detail {

// Fast path failure: the slow path will find and report the exact error.
[[noreturn]] void throwStreamFailure();
// The thread's document over `json` (copied into a padded buffer the thread reuses).
simdjson::ondemand::document& openDocument(JsonText json);
// Builds the value in `slot`, replacing what it held, each member and element in place in its container
// as the full parse builds it: no value is built aside and moved in. By reference: the parser's value is
// larger than the registers it would be passed in, and this recurses.
void streamInto(simdjson::ondemand::value& value, JsonValue& slot, std::size_t depth);
inline JsonValue streamToValue(simdjson::ondemand::value& value, std::size_t depth) {
  JsonValue out;
  streamInto(value, out, depth);
  return out;
}

// The first quote or backslash at or after `p`, which lies inside a string of the reply. Reads 16 bytes at
// a time: the string ends with a quote, and the reply's padding follows its last byte.
inline const char* findQuoteOrBackslash(const char* p) noexcept {
#if defined(__SSE2__)
  const __m128i quote = _mm_set1_epi8('"');
  const __m128i backslash = _mm_set1_epi8('\\');
  for (;; p += 16) {
    const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p));
    const int hits = _mm_movemask_epi8(_mm_or_si128(_mm_cmpeq_epi8(bytes, quote), _mm_cmpeq_epi8(bytes, backslash)));
    if (hits != 0) return p + __builtin_ctz(static_cast<unsigned>(hits));
  }
#else
  while (*p != '"' && *p != '\\') ++p;
  return p;
#endif
}

// Reads a key without unescaping it when it has no escapes (nearly always).
inline std::string_view fieldKey(simdjson::ondemand::field& field) {
  const char* start = field.key().raw();
  const char* end = findQuoteOrBackslash(start);
  if (*end == '"') return {start, static_cast<std::size_t>(end - start)};
  std::string_view unescaped;
  if (field.unescaped_key().get(unescaped)) throwStreamFailure();
  return unescaped;
}

// Whether the raw key (the reply's bytes after its opening quote) is exactly the I-th key of T. The
// name's length is a constant, so this is a few word compares; reading name.size() + 1 bytes stays
// inside the reply and its padding, which is longer than the names compared here.
template <class T, std::size_t I>
bool rawKeyIs(const char* raw) noexcept {
  constexpr std::string_view name = KeyTable<T>::names[I];
  if constexpr (name.size() >= simdjson::SIMDJSON_PADDING) {
    return false;  // left to the key table
  } else {
    return std::memcmp(raw, name.data(), name.size()) == 0 && raw[name.size()] == '"';
  }
}

// A number read by its kind, as the full parse reads it: an integer past 64 bits is refused, not rounded,
// and "-0" is the integer 0.
struct StreamNumber {
  enum class Kind { int64, uint64, real } kind;
  std::int64_t i = 0;
  std::uint64_t u = 0;
  double d = 0;

  double asDouble() const noexcept {
    switch (kind) {
      case Kind::int64: return static_cast<double>(i);
      case Kind::uint64: return static_cast<double>(u);
      case Kind::real: return d;
    }
    return d;
  }
};

// A text value. One without escapes is read where it lies in the reply; only one with escapes is
// unescaped, into the parser's string buffer. (The reply was checked as UTF-8 before any of it was read.)
inline std::string_view readText(simdjson::ondemand::value& value) {
  const std::string_view token = value.raw_json_token();
  if (!token.empty() && token.front() == '"') {
    const char* start = token.data() + 1;
    const char* end = findQuoteOrBackslash(start);
    // Taken as read, so that the parser checks what follows it. (Left to be skipped, a text followed by
    // a colon would pass for a key, and the value after it with it.)
    simdjson::ondemand::raw_json_string raw;
    if (*end == '"' && !value.get_raw_json_string().get(raw)) return {start, static_cast<std::size_t>(end - start)};
  }
  std::string_view s;
  if (value.get_string().get(s)) throwStreamFailure();
  return s;
}

// `token` (a valid JSON number and the spaces after it) correctly rounded, when it has more than 19
// digits; `parsed` otherwise.
inline double readLongDouble(std::string_view token, double parsed) {
  int digits = 0;
  for (const char c : token) {
    if (c == 'e' || c == 'E' || isJsonSpace(c)) break;
    digits += c >= '0' && c <= '9';
  }
  if (digits <= 19) return parsed;
  double d = 0;
  if (std::from_chars(token.data(), token.data() + token.size(), d).ec != std::errc()) throwStreamFailure();
  return d;
}

inline bool readBoolean(simdjson::ondemand::value& value) {
  bool b;
  if (value.get_bool().get(b)) throwStreamFailure();
  return b;
}

// Reads a value known to start like null, which must be exactly null.
inline void readNull(simdjson::ondemand::value& value) {
  bool null = false;
  if (value.is_null().get(null) || !null) throwStreamFailure();
}

// Parsed once, kind and value together.
inline StreamNumber readNumber(simdjson::ondemand::value& value) {
  simdjson::ondemand::number number;
  if (value.get_number().get(number)) throwStreamFailure();
  StreamNumber n{StreamNumber::Kind::real};
  switch (number.get_number_type()) {
    case simdjson::ondemand::number_type::signed_integer:
      n.kind = StreamNumber::Kind::int64;
      n.i = number.get_int64();
      return n;
    case simdjson::ondemand::number_type::unsigned_integer:
      n.kind = StreamNumber::Kind::uint64;
      n.u = number.get_uint64();
      return n;
    case simdjson::ondemand::number_type::floating_point_number:
      n.d = number.get_double();
      // Numbers of more than 19 digits are read again by the standard library: the parser version this
      // builds against misreads them on this path (0.60000039333330000000001 as 0.000112, some as 0).
      if (const std::string_view token = value.raw_json_token(); token.size() > 20) n.d = readLongDouble(token, n.d);
      return n;
  }
  throwStreamFailure();
}

// A decoder node over the parser's on-demand value: records are read in document order.
class StreamNode {
 public:
  // JSONDecoder::decode reports a failure by decoding the reply again in declared order.
  static constexpr bool kFailuresAreRetried = true;

  StreamNode(simdjson::ondemand::value value, DateStrategy strategy) : value_(value), strategy_(strategy) {}

  DateStrategy dateStrategy() const noexcept { return strategy_; }
  bool isNull() {
    bool null = false;
    if (value_.is_null().get(null)) throwStreamFailure();
    return null;
  }
  bool readBool() { return readBoolean(value_); }
  std::int64_t readInt64() {
    std::int64_t i;
    if (value_.get_int64().get(i)) throwStreamFailure();
    return i;
  }
  double readDouble() { return readNumber(value_).asDouble(); }
  std::string_view readString() { return readText(value_); }
  void readAny(JsonValue& out) { streamInto(value_, out, 0); }
  template <class F>
  void forEachField(F&& f) {
    simdjson::ondemand::object object;
    if (value_.get_object().get(object)) throwStreamFailure();
    for (auto result : object) {
      simdjson::ondemand::field field;
      if (std::move(result).get(field)) throwStreamFailure();
      const std::string_view key = fieldKey(field);
      StreamNode child(field.value(), strategy_);
      f(key, child);
    }
  }
  // Calls f(index, key, child) for each member whose key is one of T's coding keys, in document order.
  // Replies nearly always list a record's keys in declared order, so the key after the previous match
  // is tried first, on the raw bytes with its length known at compile time; any other key goes
  // through the key table.
  template <class T, class F>
  void forEachKnownField(F&& f) {
    simdjson::ondemand::object object;
    if (value_.get_object().get(object)) throwStreamFailure();
    int expected = 0;
    for (auto result : object) {
      simdjson::ondemand::field field;
      if (std::move(result).get(field)) throwStreamFailure();
      const char* raw = field.key().raw();
      StreamNode child(field.value(), strategy_);
      bool matched = false;
      visitKeyIndex<T>(expected, [&](auto i) {
        if (rawKeyIs<T, decltype(i)::value>(raw)) {
          matched = true;
          f(expected, std::get<decltype(i)::value>(T::codingKeys), child);
        }
      });
      if (matched) {
        ++expected;
        continue;
      }
      const int index = KeyTable<T>::find(fieldKey(field));
      if (index < 0) continue;  // the parser skips the value
      expected = index + 1;
      visitKey<T>(index, [&](const auto& key) { f(index, key, child); });
    }
  }
  template <class F>
  void forEachElement(F&& f) {
    simdjson::ondemand::array array;
    if (value_.get_array().get(array)) throwStreamFailure();
    for (auto result : array) {
      simdjson::ondemand::value element;
      if (std::move(result).get(element)) throwStreamFailure();
      StreamNode child(element, strategy_);
      f(child);
    }
  }

 private:
  simdjson::ondemand::value value_;
  DateStrategy strategy_;
};

struct StreamFailure {};

}  // namespace qb::detail

namespace qb {

template <class T>
T JSONDecoder::decode(JsonText json) const {
  // Fast path: straight from the parser in document order. Any failure, and any reply with trailing
  // content, is decoded again from a full parse in declared order, which reports the exact error (or,
  // for replies with duplicate keys, the same last-wins result).
  try {
    simdjson::ondemand::document& document = detail::openDocument(json);
    simdjson::ondemand::value root;
    if (!document.get_value().get(root)) {
      T out{};
      detail::StreamNode node(root, dateStrategy);
      detail::decodeValue(node, out);
      // Only a document consumed to its end is accepted here; trailing content goes the slow way.
      const char* rest = nullptr;
      if (document.current_location().get(rest) != simdjson::SUCCESS) return out;
    }
  } catch (const DecodingError&) {
  } catch (const detail::StreamFailure&) {
  }
  JsonValueDecoder exact;
  exact.dateStrategy = dateStrategy;
  return exact.decode<T>(parseJson(json.text));
}

}  // namespace qb

// Instantiates qb::JSONDecoder for every Typed-face model and response of a domain catalogue (see
// frame/Catalogue.hpp), and checks that each request declares the endpoint of its catalogue line.
// Expanded once per domain, at namespace scope in a .cpp file that includes the domain's Typed-face
// umbrella header: the parser's header is then compiled once per domain, not once per record.
#define QB_TYPED_CHECK_API_BOTH_(constant, path, verb, auth, Message, Request) \
  QB_TYPED_CHECK_API_TYPED_(constant, path, verb, auth, Request)
#define QB_TYPED_CHECK_API_TYPED_(constant, path, verb, auth, Request)  \
  static_assert(::qb::sameEndpoint(::qb::Request::kEndpoint, constant), \
                #Request " declares another endpoint than its catalogue line " #constant);
#define QB_TYPED_DEFINE_API_BOTH_(constant, path, verb, auth, Message, Request) QB_TYPED_DEFINE(qb::Request::Response)
#define QB_TYPED_DEFINE_API_TYPED_(constant, path, verb, auth, Request) QB_TYPED_DEFINE(qb::Request::Response)
#define QB_TYPED_SKIP_API_DICT_(constant, path, verb, auth, Message)
#define QB_TYPED_DEFINE_RECORD_BOTH_(Dictionary, Typed) QB_TYPED_DEFINE(qb::Typed)
#define QB_TYPED_DEFINE_RECORD_TYPED_(Typed) QB_TYPED_DEFINE(qb::Typed)
#define QB_TYPED_SKIP_RECORD_DICT_(Dictionary)
#define QB_TYPED_DEFINE_DOMAIN(domain, ENDPOINTS, RECORDS)                                  \
  namespace qb::domain {                                                                    \
  ENDPOINTS(QB_TYPED_CHECK_API_BOTH_, QB_TYPED_SKIP_API_DICT_, QB_TYPED_CHECK_API_TYPED_)   \
  }                                                                                         \
  ENDPOINTS(QB_TYPED_DEFINE_API_BOTH_, QB_TYPED_SKIP_API_DICT_, QB_TYPED_DEFINE_API_TYPED_) \
  RECORDS(QB_TYPED_DEFINE_RECORD_BOTH_, QB_TYPED_SKIP_RECORD_DICT_, QB_TYPED_DEFINE_RECORD_TYPED_)
