// The writers' output: JSON text written straight into a std::string's storage through a cursor, so that
// a one-byte write is a store and a bounds check, not a string append that updates its size and its
// terminating zero every time.
#pragma once

#include <cstddef>
#include <cstring>
#include <string>
#include <string_view>

namespace qb::detail {

/// Writes at the end of `out`. The string is grown ahead of the cursor (see grow), and cut back to the
/// text written when the buffer is destroyed, so `out` holds exactly what was written even when a writer
/// stops half way by throwing.
class JsonBuffer {
 public:
  explicit JsonBuffer(std::string& out) noexcept : out_(out), pos_(out.data() + out.size()), end_(pos_) {}
  JsonBuffer(const JsonBuffer&) = delete;
  JsonBuffer& operator=(const JsonBuffer&) = delete;
  ~JsonBuffer() {
    // Only ever shrinks the string here, which neither allocates nor throws.
    out_.resize(static_cast<std::size_t>(pos_ - out_.data()));
  }

  /// Room for `n` more bytes; returns where they go. Write them, then `advance` to the end of what was
  /// written.
  char* reserve(std::size_t n) {
    if (static_cast<std::size_t>(end_ - pos_) < n) grow(n);
    return pos_;
  }
  void advance(char* to) noexcept { pos_ = to; }

  void put(char c) {
    char* p = reserve(1);
    *p = c;
    pos_ = p + 1;
  }
  void append(const char* text, std::size_t n) {
    char* p = reserve(n);
    std::memcpy(p, text, n);
    pos_ = p + n;
  }
  void append(std::string_view text) { append(text.data(), text.size()); }

 private:
  void grow(std::size_t n);

  std::string& out_;
  char* pos_;
  char* end_;
};

}  // namespace qb::detail
