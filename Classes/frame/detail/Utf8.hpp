// Well-formed UTF-8, byte sequence by byte sequence: shared by the reply scanner and the host's escaping
// of error texts.
#pragma once

#include <cstddef>
#include <string_view>

namespace qb::detail {

struct Utf8Sequence {
  std::size_t length;  ///< bytes of the sequence; 0 when the bytes at the start are none
  bool truncated;      ///< the start of a well-formed sequence that the end of the text cuts off
};

/// The multi-byte sequence at the start of `text`, as the Unicode standard defines well-formed ones: no
/// overlong forms, no encoded surrogates, nothing past U+10FFFF. A lone ASCII byte is not one.
constexpr Utf8Sequence utf8Sequence(std::string_view text) noexcept {
  if (text.empty()) return {0, false};
  const auto byte = [&](std::size_t i) { return static_cast<unsigned char>(text[i]); };
  const unsigned char lead = byte(0);
  std::size_t length = 0;
  unsigned char low = 0x80, high = 0xBF;  // the range of the second byte
  if (lead >= 0xC2 && lead <= 0xDF) {
    length = 2;
  } else if (lead >= 0xE0 && lead <= 0xEF) {
    length = 3;
    if (lead == 0xE0) low = 0xA0;
    if (lead == 0xED) high = 0x9F;
  } else if (lead >= 0xF0 && lead <= 0xF4) {
    length = 4;
    if (lead == 0xF0) low = 0x90;
    if (lead == 0xF4) high = 0x8F;
  } else {
    return {0, false};
  }
  for (std::size_t k = 1; k < length; ++k) {
    if (k >= text.size()) return {0, true};
    if (byte(k) < (k == 1 ? low : 0x80) || byte(k) > (k == 1 ? high : 0xBF)) return {0, false};
  }
  return {length, false};
}

}  // namespace qb::detail
