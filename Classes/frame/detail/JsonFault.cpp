#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/JsonFault.hpp>
#include <QBComponentAPI/frame/detail/Utf8.hpp>
#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <system_error>

namespace qb::detail {
namespace {

using Kind = JsonFault::Kind;

bool isDigit(unsigned char c) noexcept { return c >= '0' && c <= '9'; }

int hexValue(unsigned char c) noexcept {
  if (c >= '0' && c <= '9') return c - '0';
  if (c >= 'a' && c <= 'f') return c - 'a' + 10;
  if (c >= 'A' && c <= 'F') return c - 'A' + 10;
  return -1;
}

// The power of ten of a number's first significant digit: 3 for 1500 and 1.5e3, -2 for 0.02, the lowest
// value for zero. `token` is a grammatical JSON number. Only the sign is ever used, so an exponent too
// long for 64 bits is clamped.
long long leadingPower(std::string_view token) noexcept {
  std::size_t i = token[0] == '-' ? 1 : 0;
  const std::size_t integerStart = i;
  while (i < token.size() && isDigit(static_cast<unsigned char>(token[i]))) ++i;
  const auto integerDigits = static_cast<long long>(i - integerStart);
  bool found = false;
  long long lead = 0;
  for (std::size_t k = integerStart; k < i && !found; ++k) {
    if (token[k] != '0') {
      found = true;
      lead = integerDigits - 1 - static_cast<long long>(k - integerStart);
    }
  }
  if (i < token.size() && token[i] == '.') {
    const std::size_t fractionStart = ++i;
    for (; i < token.size() && isDigit(static_cast<unsigned char>(token[i])); ++i) {
      if (!found && token[i] != '0') {
        found = true;
        lead = -static_cast<long long>(i - fractionStart + 1);
      }
    }
  }
  if (!found) return std::numeric_limits<long long>::min();
  long long exponent = 0;
  bool negative = false;
  if (i < token.size() && (token[i] == 'e' || token[i] == 'E')) {
    ++i;
    if (i < token.size() && (token[i] == '+' || token[i] == '-')) negative = token[i++] == '-';
    for (; i < token.size(); ++i) exponent = std::min(exponent * 10 + (token[i] - '0'), 1'000'000'000'000LL);
  }
  return lead + (negative ? -exponent : exponent);
}

// Whether the parser can hold the number `token` (grammatical JSON): an integer as int64 or uint64, any
// other number as a finite double. A number too small for a double is read as zero (or a subnormal) by
// the parser, so only overflow counts.
bool representable(std::string_view token, bool integer) noexcept {
  const char* const end = token.data() + token.size();
  if (integer) {
    const bool negative = token[0] == '-';
    std::uint64_t magnitude = 0;
    if (std::from_chars(token.data() + (negative ? 1 : 0), end, magnitude).ec != std::errc()) return false;
    return !negative || magnitude <= std::uint64_t{1} << 63;
  }
  double value = 0;
  if (std::from_chars(token.data(), end, value).ec == std::errc()) return true;
  return leadingPower(token) < 0;
}

class Scanner {
 public:
  explicit Scanner(std::string_view text) noexcept : s_(text) {}

  std::optional<JsonFault> run() {
    // Whether each open container is an object; the depth limit keeps this small and fixed.
    std::array<bool, kMaxJsonDepth> inObject{};
    std::size_t depth = 0;
    skipSpace();
    for (;;) {
      // A value starts here.
      if (atEnd()) return fault(Kind::unexpectedEnd);
      const unsigned char c = current();
      if (c == '{' || c == '[') {
        const std::size_t open = i_;
        const bool object = c == '{';
        ++i_;
        skipSpace();
        if (atEnd() || current() != (object ? '}' : ']')) {
          // The parser counts the document itself as its first level and gives an empty container
          // none, so kMaxJsonDepth - 1 containers with something in them may nest.
          if (depth + 1 >= kMaxJsonDepth) return fault(Kind::tooDeep, open);
          inObject[depth++] = object;
          if (object) {
            if (auto f = key()) return f;
          }
          continue;
        }
        ++i_;
      } else if (c == '"') {
        if (auto f = string()) return f;
      } else if (c == '-' || isDigit(c)) {
        if (auto f = number()) return f;
      } else if (c == 't' || c == 'f' || c == 'n') {
        if (auto f = literal(c == 't' ? "true" : c == 'f' ? "false" : "null")) return f;
      } else {
        return fault(Kind::unexpectedCharacter);
      }
      // A value has ended: close the containers it completes, up to the next value.
      for (;;) {
        skipSpace();
        if (depth == 0) {
          if (atEnd()) return std::nullopt;
          return fault(Kind::trailingContent);
        }
        if (atEnd()) return fault(Kind::unexpectedEnd);
        const bool object = inObject[depth - 1];
        if (current() == ',') {
          ++i_;
          skipSpace();
          if (object) {
            if (auto f = key()) return f;
          }
          break;
        }
        if (current() != (object ? '}' : ']')) return fault(Kind::unexpectedCharacter);
        ++i_;
        --depth;
      }
    }
  }

 private:
  bool atEnd() const noexcept { return i_ >= s_.size(); }
  unsigned char current() const noexcept { return static_cast<unsigned char>(s_[i_]); }
  unsigned char at(std::size_t i) const noexcept { return static_cast<unsigned char>(s_[i]); }
  JsonFault fault(Kind kind) const noexcept { return {kind, atEnd() ? s_.size() : i_}; }
  JsonFault fault(Kind kind, std::size_t offset) const noexcept { return {kind, offset}; }

  void skipSpace() noexcept {
    while (!atEnd() && isJsonSpace(current())) ++i_;
  }

  // `"key"`, the colon and the space around it.
  std::optional<JsonFault> key() {
    if (atEnd()) return fault(Kind::unexpectedEnd);
    if (current() != '"') return fault(Kind::unexpectedCharacter);
    if (auto f = string()) return f;
    skipSpace();
    if (atEnd()) return fault(Kind::unexpectedEnd);
    if (current() != ':') return fault(Kind::unexpectedCharacter);
    ++i_;
    skipSpace();
    return std::nullopt;
  }

  // The parser reads a number or a literal up to the next space or structural byte; anything else
  // there is part of a bad token.
  std::optional<JsonFault> scalarEnd() const {
    if (atEnd()) return std::nullopt;
    const unsigned char c = current();
    if (isJsonSpace(c) || c == ',' || c == ']' || c == '}') return std::nullopt;
    return fault(Kind::unexpectedCharacter);
  }

  std::optional<JsonFault> literal(std::string_view word) {
    for (const char expected : word) {
      if (atEnd()) return fault(Kind::unexpectedEnd);
      if (current() != static_cast<unsigned char>(expected)) return fault(Kind::unexpectedCharacter);
      ++i_;
    }
    return scalarEnd();
  }

  // Skips a run of digits; unexpected end or character when there is none.
  std::optional<JsonFault> digits() {
    if (atEnd()) return fault(Kind::unexpectedEnd);
    if (!isDigit(current())) return fault(Kind::unexpectedCharacter);
    while (!atEnd() && isDigit(current())) ++i_;
    return std::nullopt;
  }

  std::optional<JsonFault> number() {
    const std::size_t start = i_;
    if (current() == '-') ++i_;
    if (!atEnd() && current() == '0') {
      ++i_;  // a leading zero stands alone
    } else if (auto f = digits()) {
      return f;
    }
    bool integer = true;
    if (!atEnd() && current() == '.') {
      integer = false;
      ++i_;
      if (auto f = digits()) return f;
    }
    if (!atEnd() && (current() == 'e' || current() == 'E')) {
      integer = false;
      ++i_;
      if (!atEnd() && (current() == '+' || current() == '-')) ++i_;
      if (auto f = digits()) return f;
    }
    if (!representable(s_.substr(start, i_ - start), integer)) return fault(Kind::numberOutOfRange, start);
    return scalarEnd();
  }

  std::optional<JsonFault> string() {
    ++i_;  // the opening quote
    for (;;) {
      if (atEnd()) return fault(Kind::unexpectedEnd);
      const unsigned char c = current();
      if (c == '"') {
        ++i_;
        return std::nullopt;
      }
      if (c == '\\') {
        if (auto f = escape()) return f;
      } else if (c < 0x20) {
        return fault(Kind::controlCharacter);
      } else if (c < 0x80) {
        ++i_;
      } else if (auto f = utf8()) {
        return f;
      }
    }
  }

  // The four hex digits after the "\u" at `backslash`, or a fault.
  std::optional<JsonFault> hex4(std::size_t backslash, unsigned& unit) const {
    unit = 0;
    for (std::size_t k = backslash + 2; k < backslash + 6; ++k) {
      if (k >= s_.size()) return fault(Kind::unexpectedEnd, s_.size());
      const int digit = hexValue(at(k));
      if (digit < 0) return fault(Kind::invalidEscape, backslash);
      unit = unit * 16 + static_cast<unsigned>(digit);
    }
    return std::nullopt;
  }

  std::optional<JsonFault> escape() {
    const std::size_t start = i_;
    if (start + 1 >= s_.size()) return fault(Kind::unexpectedEnd, s_.size());
    switch (at(start + 1)) {
      case '"':
      case '\\':
      case '/':
      case 'b':
      case 'f':
      case 'n':
      case 'r':
      case 't': i_ += 2; return std::nullopt;
      case 'u': break;
      default: return fault(Kind::invalidEscape, start);
    }
    unsigned unit = 0;
    if (auto f = hex4(start, unit)) return f;
    i_ = start + 6;
    if (unit >= 0xDC00 && unit <= 0xDFFF) return fault(Kind::loneSurrogate, start);
    if (unit < 0xD800 || unit > 0xDBFF) return std::nullopt;
    // A high surrogate must be followed at once by the escape of a low one.
    if (atEnd() || (current() == '\\' && i_ + 1 >= s_.size())) return fault(Kind::unexpectedEnd, s_.size());
    if (current() != '\\' || at(i_ + 1) != 'u') return fault(Kind::loneSurrogate, start);
    unsigned low = 0;
    if (auto f = hex4(i_, low)) return f;
    if (low < 0xDC00 || low > 0xDFFF) return fault(Kind::loneSurrogate, start);
    i_ += 6;
    return std::nullopt;
  }

  // One multi-byte UTF-8 sequence.
  std::optional<JsonFault> utf8() {
    const std::size_t start = i_;
    const Utf8Sequence sequence = utf8Sequence(s_.substr(start));
    if (sequence.truncated) return fault(Kind::unexpectedEnd, s_.size());
    if (sequence.length == 0) return fault(Kind::invalidUtf8, start);
    i_ = start + sequence.length;
    return std::nullopt;
  }

  std::string_view s_;
  std::size_t i_ = 0;
};

std::string byteName(unsigned char c) {
  if (c > 0x20 && c < 0x7F) return std::string("character '") + static_cast<char>(c) + "'";
  static constexpr char kHex[] = "0123456789ABCDEF";
  return std::string("byte 0x") + kHex[c >> 4] + kHex[c & 0xF];
}

}  // namespace

std::optional<JsonFault> findJsonFault(std::string_view text) { return Scanner(text).run(); }

std::string describeJsonFault(const JsonFault& fault, std::string_view text) {
  const std::string notJson = "The given data was not valid JSON: ";
  const unsigned char byte = fault.offset < text.size() ? static_cast<unsigned char>(text[fault.offset]) : 0;
  switch (fault.kind) {
    case Kind::unexpectedCharacter: return notJson + "unexpected " + byteName(byte);
    case Kind::unexpectedEnd:
      return notJson + (text.find_first_not_of(" \t\n\r") == std::string_view::npos ? "there is no value"
                                                                                    : "the text ends inside a value");
    case Kind::trailingContent: return notJson + "unexpected " + byteName(byte) + " after the value";
    case Kind::invalidUtf8: return "The given data is not valid UTF-8";
    case Kind::controlCharacter: return notJson + "unescaped " + byteName(byte) + " in a string";
    case Kind::invalidEscape: return notJson + "invalid escape in a string";
    case Kind::loneSurrogate: return notJson + "unpaired surrogate escape in a string";
    case Kind::numberOutOfRange: return "The given data holds a number that cannot be represented";
    case Kind::tooDeep: return "The given data nests deeper than " + std::to_string(kMaxJsonDepth) + " levels";
  }
  return notJson + "malformed text";
}

}  // namespace qb::detail
