// The JSON value types shared by both faces, and the parser and writers the library relies on.
#pragma once

#include <QBComponentAPI/frame/PaddedBytes.hpp>
#include <boost/json/array.hpp>
#include <boost/json/object.hpp>
#include <boost/json/string.hpp>
#include <boost/json/value.hpp>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace qb {

using JsonValue = boost::json::value;
using JsonMap = boost::json::object;
using JsonList = boost::json::array;

/// How deep replies and values may nest (objects and arrays together). Parsing a deeper reply fails with
/// qb::DecodingError (dataCorrupted); writing a deeper value fails like any other writer error. The limit
/// keeps every recursive walk well inside a thread's stack.
inline constexpr std::size_t kMaxJsonDepth = 256;

/// Parses reply bytes into a JsonValue. Numbers keep their exact kind and value: integers that fit stay
/// int64 (or uint64 above INT64_MAX), everything else is the correctly rounded double. Duplicate keys: the
/// last one wins. Throws qb::DecodingError (dataCorrupted) for invalid JSON, invalid UTF-8, numbers out
/// of range (1e400, integers past UINT64_MAX) and nesting past kMaxJsonDepth; the error's location() gives
/// the first byte at fault. Allocates from `storage`.
JsonValue parseJson(JsonText bytes, boost::json::storage_ptr storage = {});

/// As parseJson, for replies that must be a JSON object; anything else is a DecodingError (typeMismatch).
JsonMap parseJsonMap(JsonText bytes, boost::json::storage_ptr storage = {});

/// Compact JSON text of a map (the host-level `toJson`). Throws qb::EncodingError when the value cannot
/// be written as JSON (a non-finite number, invalid UTF-8 in a text, nesting past kMaxJsonDepth).
std::string toJson(const JsonMap& map);
std::string toJson(const JsonValue& value);

/// Indented (two spaces, one member per line) JSON text, or std::nullopt when the value cannot be
/// written as JSON for the reasons listed at toJson. Never throws but for std::bad_alloc.
std::optional<std::string> toPrettyJson(const JsonValue& value);

/// The kind of a value in words ("a string", "null", "an object"), for error messages.
std::string_view describeKind(const JsonValue& value) noexcept;

namespace detail {
class JsonBuffer;
/// Appends `text` as a quoted, escaped JSON string; false (nothing useful appended) for invalid UTF-8.
bool appendQuotedJson(JsonBuffer& out, std::string_view text);
/// Appends `"key":`, after a comma when `comma`, the key escaped as any text; false for invalid UTF-8.
bool appendJsonKey(JsonBuffer& out, std::string_view key, bool comma);
/// Appends the compact JSON text of `value`, as toJson writes it and throwing as it does (with part of the
/// text then appended).
void appendJson(JsonBuffer& out, const JsonValue& value);
/// Appends the shortest exact text of `d` (with ".0" for whole numbers); false for a non-finite value.
bool appendJsonDouble(JsonBuffer& out, double d);
/// Whether `value` can be written as JSON when it sits inside `depth` objects or arrays: every number
/// finite, every text and key valid UTF-8, no nesting past kMaxJsonDepth. Writes and allocates nothing.
bool isWritableJson(const JsonValue& value, std::size_t depth = 0);
}  // namespace detail

}  // namespace qb
