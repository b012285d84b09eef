#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/Simdjson.hpp>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstring>
#if defined(__SSE2__)
#include <emmintrin.h>
#endif

#include <QBComponentAPI/frame/Errors.hpp>
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

// Writes JSON text; `indent` < 0 means compact. Returns false on a value that is not JSON.
class Writer {
 public:
  Writer(std::string& out, int indent) : out_(out), indent_(indent) {}

  bool write(const JsonValue& value, std::size_t depth = 0) {
    switch (value.kind()) {
      case boost::json::kind::null: out_ += "null"; return true;
      case boost::json::kind::bool_: out_ += value.get_bool() ? "true" : "false"; return true;
      case boost::json::kind::int64: return number(value.get_int64());
      case boost::json::kind::uint64: return number(value.get_uint64());
      case boost::json::kind::double_: return real(value.get_double());
      case boost::json::kind::string: return text(value.get_string());
      case boost::json::kind::array: return list(value.get_array(), depth + 1);
      case boost::json::kind::object: return map(value.get_object(), depth + 1);
    }
    return false;
  }

  bool map(const JsonMap& members, std::size_t depth = 1) {
    if (depth > kMaxJsonDepth) return false;
    out_ += '{';
    bool first = true;
    for (const auto& member : members) {
      if (!first) out_ += ',';
      first = false;
      newline(depth);
      if (!text(member.key())) return false;
      out_ += indent_ < 0 ? ":" : ": ";
      if (!write(member.value(), depth)) return false;
    }
    if (!members.empty()) newline(depth - 1);
    out_ += '}';
    return true;
  }

 private:
  template <class Int>
  bool number(Int n) {
    char buffer[24];
    auto result = std::to_chars(buffer, buffer + sizeof buffer, n);
    out_.append(buffer, result.ptr);
    return true;
  }

  bool real(double d) { return detail::appendJsonDouble(out_, d); }

  bool text(std::string_view s) { return detail::appendQuotedJson(out_, s); }

  void newline(std::size_t depth) {
    if (indent_ < 0) return;
    out_ += '\n';
    out_.append(depth * static_cast<std::size_t>(indent_), ' ');
  }

  bool list(const JsonList& items, std::size_t depth) {
    if (depth > kMaxJsonDepth) return false;
    out_ += '[';
    bool first = true;
    for (const auto& item : items) {
      if (!first) out_ += ',';
      first = false;
      newline(depth);
      if (!write(item, depth)) return false;
    }
    if (!items.empty()) newline(depth - 1);
    out_ += ']';
    return true;
  }

  std::string& out_;
  int indent_;
};

}  // namespace

namespace detail {

bool appendJsonDouble(std::string& out, double d) {
  if (!std::isfinite(d)) return false;
  char buffer[40];
  // Whole numbers such as timestamps read better as 1700000000.0 than as 1.7e+09; both are exact.
  auto result = std::trunc(d) == d && std::fabs(d) < 1e15
                    ? std::to_chars(buffer, buffer + sizeof buffer, d, std::chars_format::fixed)
                    : std::to_chars(buffer, buffer + sizeof buffer, d);
  std::string_view written(buffer, static_cast<std::size_t>(result.ptr - buffer));
  out += written;
  // Keep a double a double when the text is read back: "2" would come back as an integer.
  if (written.find_first_of(".e") == std::string_view::npos) out += ".0";
  return true;
}

namespace {

constexpr std::uint64_t kOnes = 0x0101010101010101ull;
constexpr std::uint64_t kHighs = 0x8080808080808080ull;

// Sets the high bit of each byte of `w` that is below 0x20, a quote or a backslash. A byte above such
// a byte may be flagged too; the word is then looked at byte by byte, which decides.
constexpr std::uint64_t mayNeedEscape(std::uint64_t w) noexcept {
  const std::uint64_t quote = w ^ (kOnes * '"');
  const std::uint64_t backslash = w ^ (kOnes * '\\');
  return ((w - kOnes * 0x20) | (quote - kOnes) | (backslash - kOnes)) & ~w & kHighs;
}

// Where the first byte below 0x20, quote or backslash of a text may be (its size when there is surely
// none), and whether the bytes before that are all ASCII. `first` may fall short of the true first such
// byte and `ascii` may be false for ASCII bytes: the caller then looks byte by byte from `first` and checks
// the text as UTF-8, which decides.
struct EscapeScan {
  std::size_t first;
  bool ascii;
};

#if defined(__SSE2__)
// A text of under sixteen bytes, read as two overlapping words straight from where it lies (a copy into a
// block and a wide load of it would stall on the store).
EscapeScan scanShortForEscape(const char* p, std::size_t n) noexcept {
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
  for (std::size_t i = 0; i < n; ++i) {
    const auto c = static_cast<unsigned char>(p[i]);
    if (c < 0x20 || c == '"' || c == '\\') return {i, ascii};
    if (c >= 0x80) ascii = false;
  }
  return {n, ascii};
}

inline int escapeMask(__m128i block) noexcept {
  const __m128i quote = _mm_cmpeq_epi8(block, _mm_set1_epi8('"'));
  const __m128i backslash = _mm_cmpeq_epi8(block, _mm_set1_epi8('\\'));
  const __m128i control = _mm_cmpeq_epi8(_mm_min_epu8(block, _mm_set1_epi8(0x1F)), block);
  return _mm_movemask_epi8(_mm_or_si128(_mm_or_si128(quote, backslash), control));
}

// Sixteen bytes at a time, the last sixteen read as one block (those already seen are known clean).
EscapeScan scanForEscape(const char* p, std::size_t n) noexcept {
  if (n < 16) return scanShortForEscape(p, n);
  int high = 0;
  for (std::size_t i = 0;; i += 16) {
    const bool last = i + 16 >= n;
    const std::size_t base = last ? n - 16 : i;
    const __m128i block = _mm_loadu_si128(reinterpret_cast<const __m128i*>(p + base));
    const int highs = _mm_movemask_epi8(block);
    if (const int mask = escapeMask(block)) {
      const auto at = static_cast<unsigned>(__builtin_ctz(static_cast<unsigned>(mask)));
      return {base + at, (high | (highs & ((1 << at) - 1))) == 0};
    }
    high |= highs;
    if (last) return {n, high == 0};
  }
}
#else
// Without SSE2 the word loop of appendQuotedJson reads the whole text.
EscapeScan scanForEscape(const char*, std::size_t) noexcept { return {0, false}; }
#endif

}  // namespace

bool appendQuotedJson(std::string& out, std::string_view s) {
  static constexpr char kHex[] = "0123456789abcdef";
  const std::size_t n = s.size();
  const EscapeScan scan = scanForEscape(s.data(), n);
  out.reserve(out.size() + n + 2);
  out += '"';
  if (scan.first == n) {
    // Most texts need no escape: copied whole, checked as UTF-8 only when one of their bytes is not ASCII.
    if (!scan.ascii && !simdjson::validate_utf8(s.data(), n)) return false;
    out.append(s.data(), n);
    out += '"';
    return true;
  }
  // From the first escape on, eight bytes at a time: runs that need no escape are copied whole, and the
  // text is checked as UTF-8 only when it has a byte outside ASCII.
  bool ascii = scan.ascii;
  std::size_t run = 0;  // start of the text not yet copied
  std::size_t i = scan.first;
  while (i < n) {
    std::size_t end = n;  // bytes up to `end` are looked at one by one
    if (i + 8 <= n) {
      std::uint64_t w;
      std::memcpy(&w, s.data() + i, 8);
      if ((w & kHighs) != 0) ascii = false;
      if (mayNeedEscape(w) == 0) {
        i += 8;
        continue;
      }
      end = i + 8;
    }
    for (; i < end; ++i) {
      const auto c = static_cast<unsigned char>(s[i]);
      if (c >= 0x80) ascii = false;
      if (c >= 0x20 && c != '"' && c != '\\') continue;
      out.append(s.data() + run, i - run);
      run = i + 1;
      switch (c) {
        case '"': out += "\\\""; break;
        case '\\': out += "\\\\"; break;
        case '\n': out += "\\n"; break;
        case '\r': out += "\\r"; break;
        case '\t': out += "\\t"; break;
        case '\b': out += "\\b"; break;
        case '\f': out += "\\f"; break;
        default:
          out += "\\u00";
          out += kHex[c >> 4];
          out += kHex[c & 0xF];
      }
    }
  }
  if (!ascii && !simdjson::validate_utf8(s.data(), s.size())) return false;
  out.append(s.data() + run, s.size() - run);
  out += '"';
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

JsonValue parseJson(JsonText json, boost::json::storage_ptr storage) {
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

void detail::appendJson(std::string& out, const JsonValue& value) {
  if (!Writer(out, -1).write(value)) throw unwritable();
}

std::string toJson(const JsonValue& value) {
  std::string out;
  detail::appendJson(out, value);
  return out;
}

std::string toJson(const JsonMap& map) {
  std::string out;
  if (!Writer(out, -1).map(map)) throw unwritable();
  return out;
}

std::optional<std::string> toPrettyJson(const JsonValue& value) {
  std::string out;
  if (!Writer(out, 2).write(value)) return std::nullopt;
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
