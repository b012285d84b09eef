// A checksum of decoded data that does not depend on which decoder produced it, so each benchmark can
// check that every variant decoded the same thing. Object members are combined without regard to their
// order (one peer keeps objects sorted); integers are hashed by value whatever kind the parser gave them.
#pragma once

#include <cstdint>
#include <cstring>
#include <string_view>

#include "Records.hpp"

namespace qb::bench {

class Checksum {
 public:
  void mix(std::uint64_t v) {
    h_ = (h_ ^ v) * 0x9e3779b97f4a7c15ull;
    h_ ^= h_ >> 29;
  }
  void mix(std::string_view s) {
    mix(s.size());
    std::size_t i = 0;
    for (; i + 8 <= s.size(); i += 8) {
      std::uint64_t word;
      std::memcpy(&word, s.data() + i, 8);
      mix(word);
    }
    std::uint64_t tail = 0;
    std::memcpy(&tail, s.data() + i, s.size() - i);
    mix(tail);
  }
  std::uint64_t value() const { return h_; }

 private:
  std::uint64_t h_ = 0x243f6a8885a308d3ull;
};

// Tags that keep values of different kinds apart.
enum class Tag : std::uint64_t { null = 1, boolean, integer, bigInteger, real, string, array, object };

inline std::uint64_t hashInteger(std::int64_t i) {
  Checksum c;
  c.mix(static_cast<std::uint64_t>(Tag::integer));
  c.mix(static_cast<std::uint64_t>(i));
  return c.value();
}
inline std::uint64_t hashUnsigned(std::uint64_t u) {
  if (u <= static_cast<std::uint64_t>(INT64_MAX)) return hashInteger(static_cast<std::int64_t>(u));
  Checksum c;
  c.mix(static_cast<std::uint64_t>(Tag::bigInteger));
  c.mix(u);
  return c.value();
}
inline std::uint64_t hashReal(double d) {
  std::uint64_t bits;
  std::memcpy(&bits, &d, sizeof bits);
  Checksum c;
  c.mix(static_cast<std::uint64_t>(Tag::real));
  c.mix(bits);
  return c.value();
}
inline std::uint64_t hashString(std::string_view s) {
  Checksum c;
  c.mix(static_cast<std::uint64_t>(Tag::string));
  c.mix(s);
  return c.value();
}
inline std::uint64_t hashScalar(Tag tag, std::uint64_t payload = 0) {
  Checksum c;
  c.mix(static_cast<std::uint64_t>(tag));
  c.mix(payload);
  return c.value();
}
// One object member; an object's hash is the sum of its members' hashes.
inline std::uint64_t hashMember(std::string_view key, std::uint64_t value) {
  Checksum c;
  c.mix(key);
  c.mix(value);
  return c.value();
}

// The document checksum of a JSON value (what the parser-ceiling walk computes straight from the text).
inline std::uint64_t hashJson(const JsonValue& v) {
  switch (v.kind()) {
    case boost::json::kind::null: return hashScalar(Tag::null);
    case boost::json::kind::bool_: return hashScalar(Tag::boolean, v.get_bool());
    case boost::json::kind::int64: return hashInteger(v.get_int64());
    case boost::json::kind::uint64: return hashUnsigned(v.get_uint64());
    case boost::json::kind::double_: return hashReal(v.get_double());
    case boost::json::kind::string: return hashString(v.get_string());
    case boost::json::kind::array: {
      Checksum c;
      c.mix(static_cast<std::uint64_t>(Tag::array));
      for (const JsonValue& e : v.get_array()) c.mix(hashJson(e));
      return c.value();
    }
    case boost::json::kind::object: {
      std::uint64_t sum = 0;
      for (const auto& member : v.get_object()) sum += hashMember(member.key(), hashJson(member.value()));
      return hashScalar(Tag::object, sum);
    }
  }
  return 0;
}

// The checksum of decoded records: every member in declared order.
template <class T>
void hashInto(Checksum& c, const T& value) {
  if constexpr (std::is_same_v<T, bool> || std::is_same_v<T, std::int64_t>) {
    c.mix(static_cast<std::uint64_t>(value));
  } else if constexpr (std::is_same_v<T, double>) {
    c.mix(hashReal(value));
  } else if constexpr (std::is_same_v<T, std::string>) {
    c.mix(std::string_view(value));
  } else if constexpr (APIEnumrable<T>) {
    c.mix(static_cast<std::uint64_t>(rawValue(value)));
  } else if constexpr (std::is_same_v<T, Date>) {
    c.mix(static_cast<std::uint64_t>(value.time_since_epoch().count()));
  } else if constexpr (std::is_same_v<T, AnyCodable>) {
    c.mix(hashJson(value.value));
  } else if constexpr (IsOptional<T>::value) {
    c.mix(value.has_value());
    if (value) hashInto(c, *value);
  } else if constexpr (IsVector<T>::value) {
    c.mix(value.size());
    for (const auto& element : value) hashInto(c, element);
  } else if constexpr (IsStringMap<T>::value) {
    c.mix(value.size());
    for (const auto& [key, element] : value) {
      c.mix(std::string_view(key));
      hashInto(c, element);
    }
  } else {
    std::apply([&](const auto&... key) { (hashInto(c, value.*key.member), ...); }, T::codingKeys);
  }
}

template <class T>
std::uint64_t checksumOf(const T& value) {
  Checksum c;
  hashInto(c, value);
  return c.value();
}

}  // namespace qb::bench
