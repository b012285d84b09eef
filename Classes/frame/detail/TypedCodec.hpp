// Generic encoding and decoding of Typed-face values over any sink or node that offers the operations
// below. The rules of the face live here once; codecs only move primitive values.
//
// An encoder sink S offers:
//   beginObject() key(string_view) endObject() beginArray() endArray()
//   writeNull() writeBool(bool) writeInt64(int64_t) writeDouble(double) writeString(string_view)
//   writeAny(const JsonValue&) dateStrategy()
// and throws EncodingError for what it cannot write.
//
// A decoder node N offers:
//   isNull() readBool() readInt64() readDouble() readString() -> string_view readAny(JsonValue&)
//   forEachElement(f(N&)) forEachField(f(string_view key, N&)) dateStrategy()
//   and either expectObject() with find(string_view key) -> std::optional<N>: records are then read key
//   by key in declared order, so the first failing field in declared order is the one reported;
//   or forEachKnownField<T>(f(int keyIndex, const Key& key, N&)), which calls f for each member whose
//   key is one of T's coding keys (`key`, its index in KeyTable<T>), skipping the others: records are
//   then read in document order (fast, but a different field may be reported when several are wrong).
// Its read functions throw DecodingError (typeMismatch, empty path) for a value of the wrong kind.
#pragma once

#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <cmath>

namespace qb::detail {

template <class T>
constexpr std::string_view typeName() {
  if constexpr (std::is_same_v<T, bool>)
    return "Bool";
  else if constexpr (std::is_same_v<T, std::int64_t>)
    return "Int64";
  else if constexpr (std::is_same_v<T, double>)
    return "Double";
  else if constexpr (std::is_same_v<T, std::string>)
    return "String";
  else if constexpr (std::is_same_v<T, Date>)
    return "Date";
  else if constexpr (std::is_same_v<T, AnyCodable>)
    return "AnyCodable";
  else if constexpr (APIEnumrable<T>)
    return EnumTraits<T>::name;
  else if constexpr (IsVector<T>::value)
    return "Array";
  else
    return "Dictionary";
}

[[noreturn]] inline void throwValueNotFound(std::string_view type) {
  throw DecodingError(DecodingError::Kind::valueNotFound, {},
                      "Expected " + std::string(type) + " value but found null instead.");
}

[[noreturn]] inline void throwKeyNotFound(std::string_view key) {
  throw DecodingError(DecodingError::Kind::keyNotFound, {},
                      "No value associated with key \"" + std::string(key) + "\".");
}

[[noreturn]] inline void throwCorrupted(std::string description) {
  throw DecodingError(DecodingError::Kind::dataCorrupted, {}, std::move(description));
}

template <class N, class T>
void decodeValue(N& node, T& out);

template <class N, class T>
void decodeRecord(N& node, T& out);

/// A node whose failures need no detail: its decoder decodes the reply once more through a node that
/// reports errors, which meets the same failure. It declares `static constexpr bool kFailuresAreRetried
/// = true` and is spared the coding paths and the null checks of required members (a null fails the
/// member's read anyway).
template <class N>
concept RetryingNode = requires {
  requires N::kFailuresAreRetried;
};

/// Runs decode(); a DecodingError leaves it with element() in front of its coding path.
template <class N, class Decode, class Element>
void withinPath(Decode&& decode, Element&& element) {
  if constexpr (RetryingNode<N>) {
    decode();
  } else {
    try {
      decode();
    } catch (const DecodingError& error) {
      throw error.prefixed(element());
    }
  }
}

/// The required form: null is valueNotFound; the if-present form: null leaves the member absent.
template <class N, class M>
void decodeMember(N& node, M& member) {
  if constexpr (std::is_same_v<M, AnyCodable>) {
    // Any value, null included.
    decodeValue(node, member);
  } else if constexpr (IsOptional<M>::value) {
    if (node.isNull()) {
      member.reset();
    } else {
      decodeValue(node, member.emplace());
    }
  } else {
    if constexpr (!RetryingNode<N>) {
      if (node.isNull()) throwValueNotFound(typeName<M>());
    }
    decodeValue(node, member);
  }
}

template <class N, class T>
void decodeValue(N& node, T& out) {
  if constexpr (std::is_same_v<T, bool>) {
    out = node.readBool();
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    out = node.readInt64();
  } else if constexpr (std::is_same_v<T, double>) {
    out = node.readDouble();
  } else if constexpr (std::is_same_v<T, std::string>) {
    // A new string of exactly the text's size, moved in: cheaper than assign(), whose general path
    // handles overlap and rounds the capacity up for growth.
    out = std::string(node.readString());
  } else if constexpr (APIEnumrable<T>) {
    out = enumFromDecoded<T>(node.readInt64());
  } else if constexpr (std::is_same_v<T, Date>) {
    const DateStrategy strategy = node.dateStrategy();
    if (strategy == DateStrategy::iso8601) {
      auto date = parseIso8601(node.readString());
      if (!date) throwCorrupted("Expected date string to be ISO8601-formatted.");
      out = *date;
    } else {
      auto date = dateFromNumber(node.readDouble(), strategy);
      if (!date) throwCorrupted("The number is not a representable date.");
      out = *date;
    }
  } else if constexpr (std::is_same_v<T, AnyCodable>) {
    node.readAny(out.value);
  } else if constexpr (IsVector<T>::value) {
    out.clear();
    node.forEachElement([&](N& child) {
      const std::size_t index = out.size();
      withinPath<N>([&] { decodeMember(child, out.emplace_back()); }, [&] { return CodingPathElement(index); });
    });
  } else if constexpr (IsStringMap<T>::value) {
    out.clear();
    node.forEachField([&](std::string_view key, N& child) {
      withinPath<N>([&] { decodeMember(child, out[std::string(key)]); },
                    [&] { return CodingPathElement(std::string(key)); });
    });
  } else {
    static_assert(Codable<T>, "no decoding is declared for this type");
    decodeRecord(node, out);
  }
}

template <class N>
concept OrderedNode = requires(N& node, std::string_view key) {
  { node.find(key) } -> std::same_as<std::optional<N>>;
  node.expectObject();
};

template <class N, class T>
void decodeRecord(N& node, T& out) {
  if constexpr (OrderedNode<N>) {
    node.expectObject();
    std::apply(
        [&](const auto&... k) {
          [[maybe_unused]] auto one = [&](const auto& key) {
            using M = typename std::remove_cvref_t<decltype(key)>::Member;
            if constexpr (std::remove_cvref_t<decltype(key)>::isFile)
              return;
            else {
              withinPath<N>(
                  [&] {
                    std::optional<N> child = node.find(key.name);
                    if (child) {
                      decodeMember(*child, out.*key.member);
                    } else if constexpr (IsOptional<M>::value) {
                      (out.*key.member).reset();
                    } else {
                      throwKeyNotFound(key.name);
                    }
                  },
                  [&] { return CodingPathElement(std::string(key.name)); });
            }
          };
          (one(k), ...);
        },
        T::codingKeys);
  } else {
    std::uint64_t seen = 0;
    node.template forEachKnownField<T>([&](int index, const auto& key, N& child) {
      if constexpr (!std::remove_cvref_t<decltype(key)>::isFile) {
        withinPath<N>([&] { decodeMember(child, out.*key.member); },
                      [&] { return CodingPathElement(std::string(key.name)); });
      }
      seen |= std::uint64_t{1} << index;
    });
    std::size_t index = 0;
    std::apply(
        [&](const auto&... k) {
          [[maybe_unused]] auto one = [&](const auto& key) {
            using M = typename std::remove_cvref_t<decltype(key)>::Member;
            if (!(seen & (std::uint64_t{1} << index))) {
              if constexpr (IsOptional<M>::value) {
                (out.*key.member).reset();
              } else if constexpr (!std::remove_cvref_t<decltype(key)>::isFile) {
                throw DecodingError(DecodingError::Kind::keyNotFound, {std::string(key.name)},
                                    "No value associated with key \"" + std::string(key.name) + "\".");
              }
            }
            ++index;
          };
          (one(k), ...);
        },
        T::codingKeys);
  }
}

// --- Encoding --------------------------------------------------------------------------------------

template <class S, class T>
void encodeValue(S& sink, const T& value);

template <class E>
[[noreturn]] void throwNotACase(std::int64_t raw) {
  throw EncodingError({}, "Unable to encode " + std::string(EnumTraits<E>::name) + " value " + std::to_string(raw) +
                              ", which is none of its cases.");
}

// A record's keys as a text sink writes them, `"name":` one after the other, made when compiling; `plain`
// when no key needs an escape, so that the text can be copied as it is.
template <class T>
struct QuotedKeyNames {
  static constexpr auto& names = CodingKeyNames<T>::names;
  static constexpr bool plain = [] {
    for (std::string_view name : names) {
      for (char c : name) {
        const auto byte = static_cast<unsigned char>(c);
        if (byte < 0x20 || byte >= 0x80 || c == '"' || c == '\\') return false;
      }
    }
    return true;
  }();
  static constexpr std::size_t size = [] {
    std::size_t total = 0;
    for (std::string_view name : names) total += name.size() + 3;
    return total;
  }();
  static constexpr std::array<char, size + 1> text = [] {
    std::array<char, size + 1> out{};
    std::size_t at = 0;
    for (std::string_view name : names) {
      out[at++] = '"';
      for (char c : name) out[at++] = c;
      out[at++] = '"';
      out[at++] = ':';
    }
    return out;
  }();
  static constexpr std::array<std::size_t, keyCount<T> + 1> offsets = [] {
    std::array<std::size_t, keyCount<T> + 1> out{};
    for (std::size_t i = 0; i < keyCount<T>; ++i) out[i + 1] = out[i] + names[i].size() + 3;
    return out;
  }();
  static constexpr std::string_view quoted(std::size_t i) {
    return {text.data() + offsets[i], offsets[i + 1] - offsets[i]};
  }
};

// A sink that takes a key already quoted and followed by its colon.
template <class S>
concept QuotedKeySink = requires(S& sink, std::string_view text) {
  sink.quotedKey(text);
};

template <class S, class T>
void encodeRecord(S& sink, const T& record) {
  sink.beginObject();
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    [[maybe_unused]] auto one = [&](const auto& key, auto index) {
      using M = typename std::remove_cvref_t<decltype(key)>::Member;
      if constexpr (!std::remove_cvref_t<decltype(key)>::isFile) {
        const M& member = record.*key.member;
        if constexpr (IsOptional<M>::value) {
          if (!member) return;
        }
        if constexpr (QuotedKeySink<S> && QuotedKeyNames<T>::plain) {
          sink.quotedKey(QuotedKeyNames<T>::quoted(decltype(index)::value));
        } else {
          sink.key(key.name);
        }
        try {
          if constexpr (IsOptional<M>::value) {
            encodeValue(sink, *member);
          } else {
            encodeValue(sink, member);
          }
        } catch (const EncodingError& error) {
          throw error.prefixed(std::string(key.name));
        }
      }
    };
    (one(std::get<I>(T::codingKeys), std::integral_constant<std::size_t, I>{}), ...);
  }
  (std::make_index_sequence<keyCount<T>>{});
  sink.endObject();
}

template <class S, class T>
void encodeValue(S& sink, const T& value) {
  if constexpr (std::is_same_v<T, bool>) {
    sink.writeBool(value);
  } else if constexpr (std::is_same_v<T, std::int64_t>) {
    sink.writeInt64(value);
  } else if constexpr (std::is_same_v<T, double>) {
    if (!std::isfinite(value)) throw EncodingError({}, "Unable to encode a non-finite Double directly in JSON.");
    sink.writeDouble(value);
  } else if constexpr (std::is_same_v<T, std::string>) {
    sink.writeString(value);
  } else if constexpr (APIEnumrable<T>) {
    // A value that is none of the cases (a cast integer, a member left out of a designated initializer)
    // would reach the server as a number it does not know; decoding fallbacks do not apply here.
    if (!fromRawValue<T>(rawValue(value))) throwNotACase<T>(rawValue(value));
    sink.writeInt64(rawValue(value));
  } else if constexpr (std::is_same_v<T, Date>) {
    const DateStrategy strategy = sink.dateStrategy();
    if (strategy == DateStrategy::iso8601) {
      sink.writeString(formatIso8601(value));
    } else {
      sink.writeDouble(dateToNumber(value, strategy));
    }
  } else if constexpr (std::is_same_v<T, AnyCodable>) {
    sink.writeAny(value.value);
  } else if constexpr (IsOptional<T>::value) {
    if (value) {
      encodeValue(sink, *value);
    } else {
      sink.writeNull();
    }
  } else if constexpr (IsVector<T>::value) {
    sink.beginArray();
    std::size_t index = 0;
    for (const auto& element : value) {
      try {
        encodeValue(sink, element);
      } catch (const EncodingError& error) {
        throw error.prefixed(index);
      }
      ++index;
    }
    sink.endArray();
  } else if constexpr (IsStringMap<T>::value) {
    sink.beginObject();
    for (const auto& [key, element] : value) {
      sink.key(key);
      try {
        encodeValue(sink, element);
      } catch (const EncodingError& error) {
        throw error.prefixed(key);
      }
    }
    sink.endObject();
  } else {
    static_assert(Codable<T>, "no encoding is declared for this type");
    encodeRecord(sink, value);
  }
}

}  // namespace qb::detail
