// Helpers shared by the Typed-face tests of every domain.
#pragma once

#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <cstddef>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace qb {

// What a request hands the host beyond its verb and flags (those are checked against the catalogue).
struct Described {
  std::string api;
  std::string body;
  std::size_t mimeBodies;
};

template <APIEncodableRequest R>
Described describe(const R& request) {
  return {request.api(), request.parseParamater(JSONEncoder()), request.mimeBodies().size()};
}

// One request of a domain's table: its path and the exact body it encodes to (no multipart parts).
struct RequestRow {
  std::function<Described()> described;
  const char* path;
  const char* body;
};

inline void expectRequestRows(const std::vector<RequestRow>& rows) {
  for (const auto& row : rows) {
    const Described d = row.described();
    SCOPED_TRACE(row.body);
    EXPECT_EQ(d.api, row.path);
    EXPECT_EQ(d.body, row.body);
    EXPECT_EQ(d.mimeBodies, 0u);
  }
}

// The keys of a JSON object, in their order.
inline std::vector<std::string> keysOf(const JsonValue& value) {
  std::vector<std::string> keys;
  for (const auto& member : value.as_object()) keys.emplace_back(member.key());
  return keys;
}

// One record of a domain's table tests: a complete reply, its required keys in declared order, and checks
// typed by the record.
struct RecordRow {
  const char* name;
  std::string full;
  std::vector<const char*> required;
  // Decodes with both decoders, then checks that encoding and decoding again gives an equal record, with
  // both codecs.
  std::function<void(std::string_view)> roundTrip;
  // Decodes and encodes again.
  std::function<std::string(std::string_view)> reencoded;
};

template <class T>
RecordRow recordRow(const char* name, std::string full, std::vector<const char*> required) {
  return {name, std::move(full), std::move(required),
          [](std::string_view json) {
            const T first = JSONDecoder().decode<T>(json);
            EXPECT_EQ(JsonValueDecoder().decode<T>(parseJson(json)), first);
            const std::string text = JSONEncoder().encode(first);
            EXPECT_EQ(JSONDecoder().decode<T>(text), first) << text;
            EXPECT_EQ(JsonValueDecoder().decode<T>(JsonValueEncoder().encode(first)), first);
          },
          [](std::string_view json) { return JSONEncoder().encode(JSONDecoder().decode<T>(json)); }};
}

// {"key": value} and [element], for building replies from the fixtures.
inline std::string jsonObject(const char* key, const std::string& value) {
  return "{\"" + std::string(key) + "\": " + value + "}";
}
inline std::string jsonList(const std::string& element) { return "[" + element + "]"; }

// The kind of the DecodingError that `decode` raises, with its coding path in `path`; dataCorrupted and
// the path "<decoded>" when it raises none.
inline DecodingError::Kind decodingFailure(const std::function<void()>& decode, std::string* path) {
  try {
    decode();
  } catch (const DecodingError& e) {
    *path = renderCodingPath(e.codingPath());
    return e.kind();
  }
  *path = "<decoded>";
  return DecodingError::Kind::dataCorrupted;
}

// Each required key of a complete reply, left out, fails `decode` with keyNotFound and, set to null, with
// valueNotFound, the key being the coding path.
inline void expectRequiredKeysFail(std::string_view name, const JsonMap& full, const std::vector<const char*>& required,
                                   const std::function<void(std::string_view)>& decode) {
  for (const char* key : required) {
    JsonMap map = full;
    map.erase(key);
    std::string path;
    const std::string missing = toJson(map);
    EXPECT_EQ(decodingFailure([&] { decode(missing); }, &path), DecodingError::Kind::keyNotFound) << name << " " << key;
    EXPECT_EQ(path, key);
    map[key] = nullptr;
    const std::string null = toJson(map);
    EXPECT_EQ(decodingFailure([&] { decode(null); }, &path), DecodingError::Kind::valueNotFound) << name << " " << key;
    EXPECT_EQ(path, key);
  }
}

}  // namespace qb
