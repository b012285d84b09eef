// Helpers shared by the Typed-face tests of every domain.
#pragma once

#include <cstddef>
#include <functional>
#include <string>

#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

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

}  // namespace qb
