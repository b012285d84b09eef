// Enumerations of the library: integer raw values, case names, case lists and the decoding fallbacks.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include <QBComponentAPI/frame/Errors.hpp>

namespace qb {

template <class E>
struct EnumCase {
  E value;
  std::string_view name;
};

/// Specialised once per enumeration (see QB_ENUM below) with:
/// - `name`: the enumeration's name, used in decoding errors;
/// - `cases`: every case in declaration order;
/// - `fallback`: the case an unknown raw value decodes as, or std::nullopt when it is an error;
/// - `hasCaseList`: whether `allCases<E>()` is offered.
template <class E>
struct EnumTraits;

/// An enumeration the codecs can carry as its bare integer.
template <class E>
concept APIEnumrable = std::is_enum_v<E> && requires {
  { EnumTraits<E>::name } -> std::convertible_to<std::string_view>;
  EnumTraits<E>::cases;
};

/// The integer put on the wire for `value`.
template <APIEnumrable E>
constexpr std::int64_t rawValue(E value) noexcept {
  return static_cast<std::int64_t>(value);
}

/// The case whose raw value is `raw`, or std::nullopt when there is none (no fallback is applied).
template <APIEnumrable E>
constexpr std::optional<E> fromRawValue(std::int64_t raw) noexcept {
  for (const auto& c : EnumTraits<E>::cases) {
    if (rawValue(c.value) == raw) return c.value;
  }
  return std::nullopt;
}

/// The case's name as declared ("billingRetrying"); empty for a value that is no case.
template <APIEnumrable E>
constexpr std::string_view caseName(E value) noexcept {
  for (const auto& c : EnumTraits<E>::cases) {
    if (c.value == value) return c.name;
  }
  return {};
}

/// Every case in declaration order; offered only by enumerations with a case list.
template <APIEnumrable E>
  requires(EnumTraits<E>::hasCaseList)
constexpr std::span<const EnumCase<E>> allCases() noexcept {
  return EnumTraits<E>::cases;
}

/// What decoding makes of a raw integer: the case, else the enumeration's fallback, else a
/// DecodingError (dataCorrupted) "Cannot initialize <Enum> from invalid Int value <n>".
template <APIEnumrable E>
E enumFromDecoded(std::int64_t raw) {
  if (auto value = fromRawValue<E>(raw)) return *value;
  if constexpr (EnumTraits<E>::fallback.has_value()) {
    return *EnumTraits<E>::fallback;
  } else {
    throw DecodingError(DecodingError::Kind::dataCorrupted, {},
                        "Cannot initialize " + std::string(EnumTraits<E>::name) + " from invalid Int value " +
                            std::to_string(raw));
  }
}

namespace detail {
/// "Shade" from "qb::test::Shade".
constexpr std::string_view unqualified(std::string_view name) noexcept {
  const auto at = name.rfind("::");
  return at == std::string_view::npos ? name : name.substr(at + 2);
}
}  // namespace detail

}  // namespace qb

#define QB_ENUM_CASE_(Enum, c) ::qb::EnumCase<Enum>{Enum::c, #c}

/// One case of an enumeration, for QB_ENUM and QB_ENUM_WITH_FALLBACK.
#define QB_CASE(Enum, c) QB_ENUM_CASE_(Enum, c)
#define QB_ENUM_TRAITS_(Enum, fallbackValue, withCaseList, ...)                                     \
  template <>                                                                                      \
  struct qb::EnumTraits<Enum> {                                                                    \
    static constexpr std::string_view name = ::qb::detail::unqualified(#Enum);                     \
    static constexpr ::qb::EnumCase<Enum> cases[] = {__VA_ARGS__};                                 \
    static constexpr std::optional<Enum> fallback = fallbackValue;                                 \
    static constexpr bool hasCaseList = withCaseList;                                              \
  }
/// Declares the traits of an enumeration whose unknown raw values fail decoding.
/// Usage: `QB_ENUM(Gender, QB_CASE(Gender, male), QB_CASE(Gender, female))`
#define QB_ENUM(Enum, ...) QB_ENUM_TRAITS_(Enum, std::nullopt, false, __VA_ARGS__)

/// Declares the traits of an enumeration with a case list, whose unknown raw values decode as `fallbackCase`.
#define QB_ENUM_WITH_FALLBACK(Enum, fallbackCase, ...) QB_ENUM_TRAITS_(Enum, Enum::fallbackCase, true, __VA_ARGS__)
