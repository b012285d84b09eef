// A collision-free hash table over a fixed list of names, found at compile time: a name is matched
// with one hash and one comparison however many names there are. Used for the Typed face's coding keys
// and the Dictionary face's field keys.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <type_traits>
#include <utility>

namespace qb::detail {

constexpr std::uint32_t keyHash(std::string_view text, std::uint32_t seed) noexcept {
  std::uint32_t h = 2166136261u ^ seed;
  for (char c : text) h = (h ^ static_cast<unsigned char>(c)) * 16777619u;
  return h ^ (h >> 15);
}

/// Names: a constexpr std::array<std::string_view, N> with static storage, its names distinct.
template <const auto& Names>
struct NameTable {
  static constexpr std::size_t count = Names.size();
  static constexpr const auto& names = Names;

  struct Layout {
    std::uint32_t seed = 0;
    std::uint32_t mask = 0;
    std::array<std::uint8_t, 256> slots{};  ///< name index + 1; 0 = empty
    bool found = false;
  };

  static constexpr Layout layout = [] {
    static_assert(count < 64, "at most 63 names");
    Layout out;
    std::size_t size = 1;
    while (size < count * 2) size *= 2;
    for (; size <= 256; size *= 2) {
      for (std::uint32_t seed = 0; seed < 4096; ++seed) {
        std::array<std::uint8_t, 256> slots{};
        bool ok = true;
        for (std::size_t i = 0; i < count && ok; ++i) {
          auto& slot = slots[keyHash(names[i], seed) & (size - 1)];
          if (slot != 0) ok = false;
          slot = static_cast<std::uint8_t>(i + 1);
        }
        if (ok) {
          out.seed = seed;
          out.mask = static_cast<std::uint32_t>(size - 1);
          out.slots = slots;
          out.found = true;
          return out;
        }
      }
    }
    return out;
  }();
  static_assert(layout.found, "the names must be distinct");

  /// The index of `text` among the names, or -1: names match only by their exact text.
  static constexpr int find(std::string_view text) noexcept {
    if constexpr (count == 0) {
      return -1;
    } else {
      const std::uint8_t slot = layout.slots[keyHash(text, layout.seed) & layout.mask];
      if (slot == 0) return -1;
      const std::string_view candidate = names[slot - 1];
      return candidate == text ? slot - 1 : -1;
    }
  }
};

/// Calls f(std::integral_constant<std::size_t, I>{}) for the I below N equal to the runtime `index` (a
/// name's index in a table), and not at all when there is none.
template <std::size_t N, class F>
constexpr void visitIndex(int index, F&& f) {
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (void)((index == static_cast<int>(I) ? (f(std::integral_constant<std::size_t, I>{}), true) : false) || ...);
  }
  (std::make_index_sequence<N>{});
}

}  // namespace qb::detail
