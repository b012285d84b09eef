#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/Simdjson.hpp>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <stdexcept>
#include <type_traits>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/detail/JsonBuffer.hpp>
#include <QBComponentAPI/frame/detail/JsonFault.hpp>

namespace qb {
namespace {

DecodingError corrupted(std::string description) {
  return DecodingError(DecodingError::Kind::dataCorrupted, {}, std::move(description));
}

DecodingError parseFailure(simdjson::error_code error) {
  switch (error) {
    case simdjson::DEPTH_ERROR:
      return corrupted("The given data nests deeper than " + std::to_string(kMaxJsonDepth) + " levels.");
    case simdjson::UTF8_ERROR: return corrupted("The given data is not valid UTF-8.");
    case simdjson::NUMBER_ERROR:
    case simdjson::NUMBER_OUT_OF_RANGE: return corrupted("The given data holds a number that cannot be represented.");
    default: return corrupted(std::string("The given data was not valid JSON: ") + simdjson::error_message(error));
  }
}

// The error for `bytes`, which the parser refused with `error`. Only now is the text read again, to find
// where it goes wrong; when that reading finds nothing to blame, the parser's own reason is given alone.
DecodingError refused(std::string_view bytes, simdjson::error_code error) {
  const auto fault = detail::findJsonFault(bytes);
  if (!fault) return parseFailure(error);
  const SourceLocation location = SourceLocation::of(bytes, fault->offset);
  return DecodingError(DecodingError::Kind::dataCorrupted, {},
                       detail::describeJsonFault(*fault, bytes) + " at " + renderSourceLocation(location) + ".",
                       location);
}

// Builds the value of `element` in `slot`, a null value that already has the reply's storage: every
// value is built where it stays, with no temporary to move and destroy.
void convertInto(simdjson::dom::element element, JsonValue& slot) {
  switch (element.type()) {
    case simdjson::dom::element_type::OBJECT: {
      simdjson::dom::object source = element.get_object().value_unsafe();
      JsonMap& map = slot.emplace_object();
      map.reserve(source.size());
      for (auto field : source) {
        // A repeated key keeps its last value.
        auto [at, inserted] = map.emplace(field.key, nullptr);
        if (!inserted) at->value().emplace_null();
        convertInto(field.value, at->value());
      }
      return;
    }
    case simdjson::dom::element_type::ARRAY: {
      simdjson::dom::array source = element.get_array().value_unsafe();
      JsonList& list = slot.emplace_array();
      list.reserve(source.size());
      for (auto child : source) convertInto(child, list.emplace_back(nullptr));
      return;
    }
    case simdjson::dom::element_type::STRING: slot.emplace_string() = element.get_string().value_unsafe(); return;
    case simdjson::dom::element_type::INT64: slot.emplace_int64() = element.get_int64().value_unsafe(); return;
    case simdjson::dom::element_type::UINT64: slot.emplace_uint64() = element.get_uint64().value_unsafe(); return;
    case simdjson::dom::element_type::DOUBLE: slot.emplace_double() = element.get_double().value_unsafe(); return;
    case simdjson::dom::element_type::BOOL: slot.emplace_bool() = element.get_bool().value_unsafe(); return;
    case simdjson::dom::element_type::NULL_VALUE: return;
  }
}

simdjson::dom::parser& threadParser() {
  thread_local simdjson::dom::parser parser;
  return parser;
}

}  // namespace

namespace detail {

void JsonBuffer::grow(std::size_t n) {
  const auto used = static_cast<std::size_t>(pos_ - out_.data());
  if (n > out_.max_size() - used) throw std::length_error("JSON text too long");
  // The string's capacity doubles as it grows, which keeps the copies linear. Its size, which resize
  // fills with zeros, grows by an eighth at a time (at most 1 MiB): the unused capacity at the end is then
  // never touched, so a large text costs no page faults for room it does not use.
  const std::size_t step = std::clamp(used / 8, std::size_t{256}, std::size_t{1} << 20);
  out_.resize(used + std::max(n, step));
  pos_ = out_.data() + used;
  end_ = out_.data() + out_.size();
}

bool appendJsonDouble(JsonBuffer& out, double d) {
  if (!std::isfinite(d)) return false;
  constexpr std::size_t kMost = 40;
  char* const start = out.reserve(kMost + 2);
  // Whole numbers such as timestamps read better as 1700000000.0 than as 1.7e+09; both are exact.
  const bool whole = std::trunc(d) == d && std::fabs(d) < 1e15;
  char* const end = whole ? std::to_chars(start, start + kMost, d, std::chars_format::fixed).ptr
                          : std::to_chars(start, start + kMost, d).ptr;
  // Keep a double a double when the text is read back: "2" would come back as an integer.
  if (whole || std::none_of(start, end, [](char c) { return c == '.' || c == 'e'; })) {
    std::memcpy(end, ".0", 2);
    out.advance(end + 2);
  } else {
    out.advance(end);
  }
  return true;
}

namespace {

// Where the first byte below 0x20, quote or backslash of a text may be (its size when there is surely
// none), and whether the bytes before that are all ASCII. `first` may fall short of the true first such
// byte and `ascii` may be false for ASCII bytes: the caller then looks on from `first` and checks
// the text as UTF-8, which decides.
struct EscapeScan {
  std::size_t first;
  bool ascii;
};

// The first byte to escape in p[from, n), or n, one byte at a time. `ascii` is cleared when a byte before
// it is outside ASCII.
std::size_t findEscapeByBytes(const char* p, std::size_t from, std::size_t n, bool& ascii) noexcept {
  for (; from < n; ++from) {
    const auto c = static_cast<unsigned char>(p[from]);
    if (c < 0x20 || c == '"' || c == '\\') return from;
    if (c >= 0x80) ascii = false;
  }
  return n;
}

#if defined(__SSE2__)
constexpr std::uint64_t kOnes = 0x0101010101010101ull;
constexpr std::uint64_t kHighs = 0x8080808080808080ull;

// Sets the high bit of each byte of `w` that is below 0x20, a quote or a backslash. A byte above such
// a byte may be flagged too; the caller then looks from there byte by byte, which decides.
constexpr std::uint64_t mayNeedEscape(std::uint64_t w) noexcept {
  const std::uint64_t quote = w ^ (kOnes * '"');
  const std::uint64_t backslash = w ^ (kOnes * '\\');
  return ((w - kOnes * 0x20) | (quote - kOnes) | (backslash - kOnes)) & ~w & kHighs;
}

// A text of under sixteen bytes, read as two overlapping words straight from where it lies (a copy into a
// block and a wide load of it would stall on the store).
[[gnu::always_inline]] inline EscapeScan scanShortForEscape(const char* p, std::size_t n) noexcept {
  if (n >= 8) {
    std::uint64_t head, tail;
    std::memcpy(&head, p, 8);
    std::memcpy(&tail, p + n - 8, 8);
    if (mayNeedEscape(head) != 0) return {0, true};
    if (mayNeedEscape(tail) != 0) return {n - 8, (head & kHighs) == 0};
    return {n, ((head | tail) & kHighs) == 0};
  }
  if (n >= 4) {
    std::uint32_t head, tail;
    std::memcpy(&head, p, 4);
    std::memcpy(&tail, p + n - 4, 4);
    const std::uint64_t w = head | (std::uint64_t{tail} << 32);
    if (mayNeedEscape(w) != 0) return {0, true};
    return {n, (w & kHighs) == 0};
  }
  bool ascii = true;
  const std::size_t first = findEscapeByBytes(p, 0, n, ascii);
  return {first, ascii};
}

inline int escapeMask(__m128i block) noexcept {
  const __m128i quote = _mm_cmpeq_epi8(block, _mm_set1_epi8('"'));
  const __m128i backslash = _mm_cmpeq_epi8(block, _mm_set1_epi8('\\'));
  const __m128i control = _mm_cmpeq_epi8(_mm_min_epu8(block, _mm_set1_epi8(0x1F)), block);
  return _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(quote, backslash), control));
}

// The first byte to escape in p[from, n), or n. `ascii` is cleared when a byte before it is outside ASCII.
std::size_t findEscape(const char* p, std::size_t from, std::size_t n, bool& ascii) noexcept {
  int high = 0;
  for (; from + 16 <= n; from += 16) {
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + from));
    const int highs = _mm_movemask_epi8(block);
    if (const int mask = escapeMask(block)) {
      const auto at = static_cast<unsigned>(__builtin_ctz(static_cast<unsigned>(mask)));
      if ((high | (highs & ((1 << at) - 1))) != 0) ascii = false;
      return from + at;
    }
    high |= highs;
  }
  if (high != 0) ascii = false;
  if (from < n && n >= 16) {
    // The last bytes, read as the text's last sixteen with those already seen shifted out.
    const std::size_t seen = from - (n - 16);
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + n - 16));
    const int highs = _mm_movemask_epi8(block) >> seen;
    if (const int mask = escapeMask(block) >> seen) {
      const auto at = static_cast<unsigned>(__builtin_ctz(static_cast<unsigned>(mask)));
      if ((highs & ((1 << at) - 1)) != 0) ascii = false;
      return from + at;
    }
    if (highs != 0) ascii = false;
    return n;
  }
  return findEscapeByBytes(p, from, n, ascii);
}
#else
std::size_t findEscape(const char* p, std::size_t from, std::size_t n, bool& ascii) noexcept {
  return findEscapeByBytes(p, from, n, ascii);
}
#endif

[[gnu::always_inline]] inline EscapeScan scanForEscape(const char* p, std::size_t n) noexcept {
#if defined(__SSE2__)
  if (n < 16) return scanShortForEscape(p, n);
#endif
  bool ascii = true;
  const std::size_t first = findEscape(p, 0, n, ascii);
  return {first, ascii};
}

// Writes the escape of `c` (a quote, a backslash or a control byte) at p; returns its end.
char* writeEscape(char* p, unsigned char c) noexcept {
  static constexpr char kHex[] = "0123456789abcdef";
  p[0] = '\\';
  switch (c) {
    case '"': p[1] = '"'; return p + 2;
    case '\\': p[1] = '\\'; return p + 2;
    case '\n': p[1] = 'n'; return p + 2;
    case '\r': p[1] = 'r'; return p + 2;
    case '\t': p[1] = 't'; return p + 2;
    case '\b': p[1] = 'b'; return p + 2;
    case '\f': p[1] = 'f'; return p + 2;
    default:
      std::memcpy(p + 1, "u00", 3);
      p[4] = kHex[c >> 4];
      p[5] = kHex[c & 0xF];
      return p + 6;
  }
}

// Copies n bytes. Most texts of a reply are short: up to sixteen bytes they are copied as two
// overlapping words, without a call to memcpy.
[[gnu::always_inline]] inline void copyText(char* to, const char* from, std::size_t n) noexcept {
  if (n >= 8 && n <= 16) {
    std::uint64_t head, tail;
    std::memcpy(&head, from, 8);
    std::memcpy(&tail, from + n - 8, 8);
    std::memcpy(to, &head, 8);
    std::memcpy(to + n - 8, &tail, 8);
  } else if (n >= 4 && n < 8) {
    std::uint32_t head, tail;
    std::memcpy(&head, from, 4);
    std::memcpy(&tail, from + n - 4, 4);
    std::memcpy(to, &head, 4);
    std::memcpy(to + n - 4, &tail, 4);
  } else {
    std::memcpy(to, from, n);
  }
}

// Writes a text that needs no escape at p, with its quotes (room for its size + 2); returns the end.
char* writeQuotedWhole(char* p, std::string_view s) noexcept {
  *p = '"';
  copyText(p + 1, s.data(), s.size());
  p[s.size() + 1] = '"';
  return p + s.size() + 2;
}

void appendQuotedWhole(JsonBuffer& out, std::string_view s) {
  out.advance(writeQuotedWhole(out.reserve(s.size() + 2), s));
}

// The texts appendQuotedJson does not copy whole at once: those outside ASCII, checked as UTF-8 first,
// and those with a byte to escape. Kept out of line, so that the common case is a short function.
[[gnu::noinline]] bool appendQuotedRest(JsonBuffer& out, std::string_view s, EscapeScan scan) {
  const std::size_t n = s.size();
  if (scan.first == n) {
    if (!simdjson::validate_utf8(s.data(), n)) return false;
    appendQuotedWhole(out, s);
    return true;
  }
  // From the first escape on, each run up to the next byte to escape is found sixteen bytes at a time and
  // copied whole. (The first scan may stop short of the first such byte; the loop then moves on from it.)
  out.put('"');
  bool ascii = scan.ascii;
  std::size_t run = 0;  // start of the text not yet copied
  std::size_t i = scan.first;
  while (i < n) {
    const auto c = static_cast<unsigned char>(s[i]);
    if (c >= 0x20 && c != '"' && c != '\\') {
      if (c >= 0x80) ascii = false;
      i = findEscape(s.data(), i + 1, n, ascii);
      continue;
    }
    out.append(s.data() + run, i - run);
    out.advance(writeEscape(out.reserve(6), c));
    run = ++i;
    i = findEscape(s.data(), i, n, ascii);
  }
  if (!ascii && !simdjson::validate_utf8(s.data(), n)) return false;
  out.append(s.data() + run, n - run);
  out.put('"');
  return true;
}

}  // namespace

bool appendQuotedJson(JsonBuffer& out, std::string_view s) {
  const EscapeScan scan = scanForEscape(s.data(), s.size());
  // Most texts are ASCII and need no escape: copied whole.
  if (scan.first != s.size() || !scan.ascii) return appendQuotedRest(out, s, scan);
  appendQuotedWhole(out, s);
  return true;
}

bool appendJsonKey(JsonBuffer& out, std::string_view key, bool comma) {
  const std::size_t n = key.size();
  const EscapeScan scan = scanForEscape(key.data(), n);
  if (scan.first == n && scan.ascii) {
    char* p = out.reserve(n + 4);
    if (comma) *p++ = ',';
    p = writeQuotedWhole(p, key);
    *p = ':';
    out.advance(p + 1);
    return true;
  }
  if (comma) out.put(',');
  if (!appendQuotedRest(out, key, scan)) return false;
  out.put(':');
  return true;
}

bool isWritableJson(const JsonValue& value, std::size_t depth) {
  switch (value.kind()) {
    case boost::json::kind::double_: return std::isfinite(value.get_double());
    case boost::json::kind::string: {
      const auto& text = value.get_string();
      return simdjson::validate_utf8(text.data(), text.size());
    }
    case boost::json::kind::array:
      if (++depth > kMaxJsonDepth) return false;
      for (const auto& item : value.get_array()) {
        if (!isWritableJson(item, depth)) return false;
      }
      return true;
    case boost::json::kind::object:
      if (++depth > kMaxJsonDepth) return false;
      for (const auto& member : value.get_object()) {
        if (!simdjson::validate_utf8(member.key().data(), member.key().size()) ||
            !isWritableJson(member.value(), depth)) {
          return false;
        }
      }
      return true;
    default: return true;
  }
}

}  // namespace detail

namespace {

// Writes JSON text, compact or indented by two spaces. Returns false on a value that is not JSON.
template <bool Pretty>
class Writer {
 public:
  explicit Writer(detail::JsonBuffer& out) : out_(out) {}

  bool write(const JsonValue& value, std::size_t depth = 0) {
    switch (value.kind()) {
      case boost::json::kind::null: out_.append("null", 4); return true;
      case boost::json::kind::bool_: value.get_bool() ? out_.append("true", 4) : out_.append("false", 5); return true;
      case boost::json::kind::int64: return number(value.get_int64());
      case boost::json::kind::uint64: return number(value.get_uint64());
      case boost::json::kind::double_: return detail::appendJsonDouble(out_, value.get_double());
      case boost::json::kind::string: return detail::appendQuotedJson(out_, value.get_string());
      case boost::json::kind::array: return list(value.get_array(), depth + 1);
      case boost::json::kind::object: return map(value.get_object(), depth + 1);
    }
    return false;
  }

  bool map(const JsonMap& members, std::size_t depth = 1) {
    if (depth > kMaxJsonDepth) return false;
    out_.put('{');
    bool first = true;
    for (const auto& member : members) {
      if constexpr (Pretty) {
        if (!first) out_.put(',');
        newline(depth);
        if (!detail::appendQuotedJson(out_, member.key())) return false;
        out_.append(": ", 2);
      } else {
        if (!detail::appendJsonKey(out_, member.key(), !first)) return false;
      }
      first = false;
      if (!write(member.value(), depth)) return false;
    }
    if (!members.empty()) newline(depth - 1);
    out_.put('}');
    return true;
  }

 private:
  template <class Int>
  bool number(Int n) {
    char* p = out_.reserve(24);
    out_.advance(std::to_chars(p, p + 24, n).ptr);
    return true;
  }

  void newline(std::size_t depth) {
    if constexpr (!Pretty) return;
    const std::size_t spaces = depth * 2;
    char* p = out_.reserve(spaces + 1);
    *p = '\n';
    std::memset(p + 1, ' ', spaces);
    out_.advance(p + 1 + spaces);
  }

  bool list(const JsonList& items, std::size_t depth) {
    if (depth > kMaxJsonDepth) return false;
    out_.put('[');
    bool first = true;
    for (const auto& item : items) {
      if (!first) out_.put(',');
      first = false;
      newline(depth);
      if (!write(item, depth)) return false;
    }
    if (!items.empty()) newline(depth - 1);
    out_.put(']');
    return true;
  }

  detail::JsonBuffer& out_;
};

// Parses `json` with the thread's parser; the root stays readable until the thread parses again.
simdjson::dom::element parseRoot(JsonText json) {
  const std::string_view bytes = json.text;
  auto& parser = threadParser();
  // The parser's buffers take about fourteen times the largest reply seen.
  if (detail::givesBack(parser.capacity(), bytes.size())) parser = simdjson::dom::parser();
  if (parser.max_depth() != kMaxJsonDepth || parser.capacity() < bytes.size()) {
    if (auto error = parser.allocate(std::max<std::size_t>(bytes.size(), 4096), kMaxJsonDepth)) {
      throw parseFailure(error);
    }
  }
  thread_local std::string buffer;
  // Bytes kept with their padding are read where they are; any others are copied first.
  const char* text = json.padded ? bytes.data() : detail::copyPadded(buffer, bytes);
  simdjson::dom::element root;
  if (auto error = parser.parse(text, bytes.size(), false).get(root)) throw refused(bytes, error);
  return root;
}

}  // namespace

JsonValue parseJson(JsonText json, boost::json::storage_ptr storage) {
  const simdjson::dom::element root = parseRoot(json);
  JsonValue value(std::move(storage));
  convertInto(root, value);
  return value;
}

JsonMap parseJsonMap(JsonText bytes, boost::json::storage_ptr storage) {
  JsonValue value = parseJson(bytes, std::move(storage));
  if (!value.is_object()) {
    throw DecodingError(
        DecodingError::Kind::typeMismatch, {},
        std::string("Expected to decode an object but found ") + std::string(describeKind(value)) + " instead.");
  }
  return std::move(value.get_object());
}

static EncodingError unwritable() {
  return EncodingError({},
                       "The value cannot be written as JSON (a non-finite number, invalid UTF-8 or "
                       "nesting too deep).");
}

void detail::appendJson(detail::JsonBuffer& out, const JsonValue& value) {
  if (!Writer<false>(out).write(value)) throw unwritable();
}

std::string toJson(const JsonValue& value) {
  std::string out;
  {
    detail::JsonBuffer buffer(out);
    detail::appendJson(buffer, value);
  }
  return out;
}

std::string toJson(const JsonMap& map) {
  std::string out;
  {
    detail::JsonBuffer buffer(out);
    if (!Writer<false>(buffer).map(map)) throw unwritable();
  }
  return out;
}

std::optional<std::string> toPrettyJson(const JsonValue& value) {
  std::string out;
  {
    detail::JsonBuffer buffer(out);
    if (!Writer<true>(buffer).write(value)) return std::nullopt;
  }
  return out;
}

std::string_view describeKind(const JsonValue& value) noexcept {
  switch (value.kind()) {
    case boost::json::kind::null: return "null";
    case boost::json::kind::bool_: return "a boolean";
    case boost::json::kind::int64:
    case boost::json::kind::uint64: return "an integer";
    case boost::json::kind::double_: return "a number";
    case boost::json::kind::string: return "a string";
    case boost::json::kind::array: return "an array";
    case boost::json::kind::object: return "an object";
  }
  return "a value";
}

}  // namespace qb
