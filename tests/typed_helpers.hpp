// Helpers shared by the Typed-face tests of every domain.
#pragma once

#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Json.hpp>
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
