#include <cmath>
#include <limits>

#include <QBComponentAPI/frame/detail/DictEngine.hpp>

namespace qb {

std::optional<std::string> QBAPIModel::toJsonString() const { return toPrettyJson(JsonValue(toDictionary())); }

JsonList toDictionary(const JsonList& list) { return list; }

std::optional<std::string> toJsonString(const JsonList& list) { return toPrettyJson(JsonValue(list)); }

namespace {

std::int64_t leadingInteger(std::string_view text) {
  constexpr auto kMax = std::numeric_limits<std::int64_t>::max();
  constexpr auto kMin = std::numeric_limits<std::int64_t>::min();
  std::size_t i = 0;
  while (i < text.size() && (text[i] == ' ' || (text[i] >= '\t' && text[i] <= '\r'))) ++i;
  bool negative = false;
  if (i < text.size() && (text[i] == '+' || text[i] == '-')) negative = text[i++] == '-';
  std::uint64_t magnitude = 0;
  const std::uint64_t limit = negative ? static_cast<std::uint64_t>(kMax) + 1 : static_cast<std::uint64_t>(kMax);
  for (; i < text.size() && text[i] >= '0' && text[i] <= '9'; ++i) {
    const auto digit = static_cast<std::uint64_t>(text[i] - '0');
    if (magnitude > (limit - digit) / 10) return negative ? kMin : kMax;
    magnitude = magnitude * 10 + digit;
  }
  if (negative) return magnitude == static_cast<std::uint64_t>(kMax) + 1 ? kMin : -static_cast<std::int64_t>(magnitude);
  return static_cast<std::int64_t>(magnitude);
}

std::int64_t truncated(double d) {
  if (std::isnan(d)) return 0;
  // 2^63 is exactly representable; anything at or past it clamps.
  if (d >= 9223372036854775808.0) return std::numeric_limits<std::int64_t>::max();
  if (d <= -9223372036854775808.0) return std::numeric_limits<std::int64_t>::min();
  return static_cast<std::int64_t>(d);
}

}  // namespace

std::int64_t toInteger(const JsonValue& value, std::string_view key) {
  switch (value.kind()) {
    case boost::json::kind::int64: return value.get_int64();
    case boost::json::kind::uint64: {
      const std::uint64_t u = value.get_uint64();
      return u > static_cast<std::uint64_t>(std::numeric_limits<std::int64_t>::max())
                 ? std::numeric_limits<std::int64_t>::max()
                 : static_cast<std::int64_t>(u);
    }
    case boost::json::kind::double_: return truncated(value.get_double());
    case boost::json::kind::bool_: return value.get_bool() ? 1 : 0;
    case boost::json::kind::string: return leadingInteger(value.get_string());
    default: break;
  }
  detail::throwNotA("an integer", key, value);
}

namespace detail {

void throwNotA(std::string_view expected, std::string_view key, const JsonValue& value) {
  std::string text = "Expected ";
  text.append(expected).append(" under \"").append(key).append("\" but found ").append(describeKind(value)) += '.';
  throw JsonTypeError(text);
}

void throwUnwritableParameter(std::string_view key) {
  throw EncodingError({std::string(key)}, "The parameter cannot be written as JSON text.");
}

}  // namespace detail
}  // namespace qb
