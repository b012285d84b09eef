// The one way the library includes simdjson. Included only by .cpp files (and by JSONDecoderImpl.hpp).
#pragma once

// The parser's on-demand objects pass between the library and every file that includes this header, so
// their layout must not follow each file's own flags: simdjson turns its development checks on in
// unoptimised builds and its thread support on with -pthread (or through its CMake package).
#ifdef SIMDJSON_H
#if SIMDJSON_DEVELOPMENT_CHECKS || !defined(SIMDJSON_THREADS_ENABLED)
#error "include frame/detail/Simdjson.hpp (or JSONDecoderImpl.hpp) before <simdjson.h>"
#endif
#endif
#undef SIMDJSON_DEVELOPMENT_CHECKS
#define SIMDJSON_DEVELOPMENT_CHECKS 0
#ifndef SIMDJSON_THREADS_ENABLED
#define SIMDJSON_THREADS_ENABLED 1
#endif
#include <simdjson.h>

#include <QBComponentAPI/frame/PaddedBytes.hpp>
#include <cstddef>
#include <string>
#include <string_view>

namespace qb::detail {

// Each thread keeps its parsers and its padded copy of the reply from one reply to the next. Buffers
// grown past kLargeBuffer by a large reply are given back at the next reply under kSmallReply.
inline constexpr std::size_t kLargeBuffer = std::size_t{8} << 20;
inline constexpr std::size_t kSmallReply = std::size_t{1} << 20;

inline bool givesBack(std::size_t capacity, std::size_t replySize) noexcept {
  return capacity > kLargeBuffer && replySize < kSmallReply;
}

// Copies `bytes` into `buffer` followed by the parser's padding (zeros) and returns the copy. The buffer
// is sized once for both: appending the padding to a buffer sized for the text alone would copy the
// whole reply again.
inline const char* copyPadded(std::string& buffer, std::string_view bytes) {
  if (givesBack(buffer.capacity(), bytes.size())) std::string().swap(buffer);
  buffer.reserve(bytes.size() + simdjson::SIMDJSON_PADDING);
  buffer.assign(bytes);
  buffer.append(simdjson::SIMDJSON_PADDING, '\0');
  return buffer.data();
}

static_assert(PaddedBytes::kPadding >= simdjson::SIMDJSON_PADDING, "PaddedBytes must keep the parser's padding");

}  // namespace qb::detail
