// Error types raised by both faces of the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace qb {

/// The one base of every error the library and its host throw: `catch (const qb::Error&)` catches them all,
/// and each derived type keeps its own accessors.
class Error : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Raised by the Dictionary face when a required field or parameter is absent (or JSON null).
/// `reason()` is "<field> is missing in model <Model>", and what() is exactly the reason; `name()` is
/// always "ParameterCheckFailException".
class ParameterCheckFailException : public Error {
 public:
  explicit ParameterCheckFailException(std::string reason) : Error(reason), reason_(std::move(reason)) {}
  static ParameterCheckFailException missing(std::string_view field, std::string_view model);

  std::string_view name() const noexcept { return "ParameterCheckFailException"; }
  const std::string& reason() const noexcept { return reason_; }

 private:
  std::string reason_;
};

/// A JSON value used as something it is not: a null or a list read as an integer, a text read as a
/// nested record, a null element in a list of records. Raised by the Dictionary face.
class JsonTypeError : public Error {
 public:
  using Error::Error;
};

/// One step of a coding path: a key of an object or an index into a list.
using CodingPathElement = std::variant<std::string, std::size_t>;
using CodingPath = std::vector<CodingPathElement>;

/// Renders a coding path as "config.legal_config.privacy_policy_version" or "faqs[2].title".
std::string renderCodingPath(const CodingPath& path);

/// A place in a reply's text: `offset` counts bytes from 0; `line` and `column` count from 1, lines end
/// at '\n' and columns count bytes (not characters).
struct SourceLocation {
  std::size_t offset = 0;
  std::size_t line = 1;
  std::size_t column = 1;

  /// The location of byte `offset` of `text` (an offset at the end names the place just past the last byte).
  static SourceLocation of(std::string_view text, std::size_t offset) noexcept;
  friend bool operator==(const SourceLocation&, const SourceLocation&) = default;
};

/// "line 3, column 14 (byte 52)"
std::string renderSourceLocation(const SourceLocation& location);

/// Failure of decoding a reply, in either face. `codingPath()` leads from the reply's root to the failing
/// value. A reply that is not JSON at all (dataCorrupted from qb::parseJson, and so from both faces) also
/// carries `location()`, the first byte that makes the text invalid, and the description names it
/// ("... at line 1, column 12 (byte 11)."). Every other error has no location.
class DecodingError : public Error {
 public:
  enum class Kind { keyNotFound, valueNotFound, typeMismatch, dataCorrupted };

  /// The description is taken as it is: when there is a location, it should name it already.
  DecodingError(Kind kind, CodingPath path, std::string debugDescription,
                std::optional<SourceLocation> location = std::nullopt);

  Kind kind() const noexcept { return kind_; }
  const CodingPath& codingPath() const noexcept { return path_; }
  const std::string& debugDescription() const noexcept { return description_; }
  const std::optional<SourceLocation>& location() const noexcept { return location_; }
  /// Returns a copy with `element` put in front of the path: used while the error travels up.
  DecodingError prefixed(CodingPathElement element) const;

 private:
  Kind kind_;
  CodingPath path_;
  std::string description_;
  std::optional<SourceLocation> location_;
};

std::string_view kindName(DecodingError::Kind kind) noexcept;

/// Failure of the Typed face's encoding (for example a non-finite double) or of turning a
/// Dictionary-face record parameter into JSON text.
class EncodingError : public Error {
 public:
  EncodingError(CodingPath path, std::string debugDescription);

  const CodingPath& codingPath() const noexcept { return path_; }
  const std::string& debugDescription() const noexcept { return description_; }
  EncodingError prefixed(CodingPathElement element) const;

 private:
  CodingPath path_;
  std::string description_;
};

}  // namespace qb
