/// \file
/// qb::PaddedBytes and qb::JsonText: reply bytes that the JSON parser reads where they lie.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <type_traits>

namespace qb {

/// Bytes followed by kPadding zero bytes that are not part of them. The JSON parser reads a little past
/// the end of its input; bytes kept here can be parsed where they are, where any other buffer is copied
/// into one with room first. A transport that receives replies into a PaddedBytes (as the host does)
/// saves that copy, a reply's size in time and memory.
class PaddedBytes {
 public:
  /// The zero bytes kept after the contents; at least what the parser reads past its input.
  static constexpr std::size_t kPadding = 64;

  PaddedBytes() = default;
  /// A copy of `text` (implicit, so a reply written in a test reads as text).
  PaddedBytes(std::string_view text) { append(text); }
  PaddedBytes(const std::string& text) : PaddedBytes(std::string_view(text)) {}
  PaddedBytes(const char* text) : PaddedBytes(std::string_view(text)) {}

  /// Appends `more` and keeps the padding after it.
  void append(std::string_view more) {
    const std::size_t n = size();
    buffer_.resize(n);  // shrinking never reallocates
    buffer_.append(more);
    buffer_.append(kPadding, '\0');
  }
  /// Room for `bytes` of contents (and the padding) without reallocating.
  void reserve(std::size_t bytes) { buffer_.reserve(bytes + kPadding); }
  void clear() noexcept { buffer_.clear(); }

  const char* data() const noexcept { return buffer_.data(); }
  std::size_t size() const noexcept { return buffer_.empty() ? 0 : buffer_.size() - kPadding; }
  bool empty() const noexcept { return size() == 0; }
  std::string_view view() const noexcept { return {buffer_.data(), size()}; }
  operator std::string_view() const noexcept { return view(); }
  std::string str() const { return std::string(view()); }
  /// Whether the padding is there: always once anything (even nothing) was appended, never before.
  bool padded() const noexcept { return !buffer_.empty(); }

  friend bool operator==(const PaddedBytes& a, std::string_view b) noexcept { return a.view() == b; }
  /// Writes the contents to a stream (any with `<<` for std::string_view).
  template <class Stream>
  friend Stream& operator<<(Stream& out, const PaddedBytes& bytes) {
    out << bytes.view();
    return out;
  }

 private:
  std::string buffer_;  ///< the contents, then kPadding zeros; empty when there are no contents
};

/// JSON text as the decoders take it: a view of the bytes and whether PaddedBytes::kPadding bytes after
/// them may be read. Built implicitly from text of any kind; only a PaddedBytes counts as padded, and
/// everything else is copied into a padded buffer of the thread's before it is parsed.
struct JsonText {
  std::string_view text;
  bool padded = false;

  JsonText(std::string_view t) noexcept : text(t) {}
  /// Any other text: std::string, a C string, a JSON library's own string type...
  template <class Text>
  requires(std::is_convertible_v<const Text&, std::string_view> && !std::is_same_v<Text, PaddedBytes>)
      JsonText(const Text& t)
  noexcept(noexcept(std::string_view(t))) : text(std::string_view(t)) {}
  JsonText(const PaddedBytes& bytes) noexcept : text(bytes.view()), padded(bytes.padded()) {}
};

}  // namespace qb
