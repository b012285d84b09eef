// Where a text stops being JSON. Used only after qb::parseJson has refused a reply, to tell the caller
// where the fault is; a reply that parses never pays for it.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qb::detail {

/// The four bytes JSON allows between tokens (given as a char or an unsigned char).
constexpr bool isJsonSpace(int c) noexcept { return c == ' ' || c == '\t' || c == '\n' || c == '\r'; }

struct JsonFault {
  enum class Kind {
    unexpectedCharacter,  ///< a byte that no JSON text can have here
    unexpectedEnd,        ///< the text stops inside a value, or holds no value at all
    trailingContent,      ///< something follows the complete value
    invalidUtf8,          ///< a string holds a byte sequence that is not UTF-8
    controlCharacter,     ///< a string holds a byte below 0x20 unescaped
    invalidEscape,        ///< a backslash followed by anything but a JSON escape
    loneSurrogate,        ///< a \u escape of half a surrogate pair without its other half
    numberOutOfRange,     ///< an integer past int64/uint64, or a number too large for a double
    tooDeep,              ///< nesting past what the parser accepts (see kMaxJsonDepth)
  };
  Kind kind;
  /// The first byte that makes the text invalid. For a number out of range, the number's first byte; for
  /// invalid UTF-8, the sequence's first byte; for a bad or lone surrogate escape, its backslash; for
  /// nesting too deep, the bracket that opens one level too many; for an unexpected end, the text's size.
  std::size_t offset;
};

/// The first fault of `text` read as one JSON value, judged exactly as qb::parseJson judges it (strict
/// JSON, UTF-8, numbers that fit int64, uint64 or a finite double, the parser's nesting limit), or
/// std::nullopt when the text is valid. Iterative, and its memory does not grow with the text.
std::optional<JsonFault> findJsonFault(std::string_view text);

/// What is wrong, as a sentence without the location and without a final period:
/// "The given data was not valid JSON: unexpected character 'x'".
std::string describeJsonFault(const JsonFault& fault, std::string_view text);

}  // namespace qb::detail
