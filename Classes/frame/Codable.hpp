// The Typed face's record declarations: a record lists its coding keys once, beside its members,
//
//   struct AutoUpdateModel {
//     bool hasUpdate;
//     bool forceUpdate;
//     static constexpr auto codingKeys = qb::codingKeys(
//         qb::key("has_update", &AutoUpdateModel::hasUpdate),
//         qb::key("force_update", &AutoUpdateModel::forceUpdate));
//     bool operator==(const AutoUpdateModel&) const = default;
//   };
//
// and every encoder and decoder works from that declaration. A member of type std::optional<T> is
// optional (if-present form); any other member is required.
#pragma once

#include <QBComponentAPI/frame/Date.hpp>
#include <QBComponentAPI/frame/Enum.hpp>
#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/detail/NameTable.hpp>
#include <array>
#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <utility>
#include <vector>

namespace qb {

/// One coding key: the JSON key and the member it codes. A file key marks a request's file member, which
/// is never encoded: the request turns it into a multipart body.
template <class Owner, class T, bool File = false>
struct CodingKey {
  using Member = T;
  static constexpr bool isFile = File;
  std::string_view name;
  T Owner::*member;
};

template <class Owner, class T>
using FileKey = CodingKey<Owner, T, true>;

template <class Owner, class T>
constexpr CodingKey<Owner, T> key(std::string_view name, T Owner::*member) {
  return {name, member};
}

template <class Owner>
constexpr FileKey<Owner, std::optional<APIFile>> file(std::string_view name, std::optional<APIFile> Owner::*member) {
  return {name, member};
}

template <class... Keys>
constexpr std::tuple<Keys...> codingKeys(Keys... keys) {
  return std::tuple<Keys...>{keys...};
}

/// A record with a coding-key declaration.
template <class T>
concept Codable = requires {
  std::tuple_size<std::remove_cv_t<decltype(T::codingKeys)>>::value;
};

template <class T>
struct IsOptional : std::false_type {};
template <class T>
struct IsOptional<std::optional<T>> : std::true_type {};

template <class T>
struct IsVector : std::false_type {};
template <class T, class A>
struct IsVector<std::vector<T, A>> : std::true_type {};

template <class T>
struct IsStringMap : std::false_type {};
template <class T, class C, class A>
struct IsStringMap<std::map<std::string, T, C, A>> : std::true_type {};

namespace detail {

template <class T>
inline constexpr std::size_t keyCount = std::tuple_size_v<std::remove_cv_t<decltype(T::codingKeys)>>;

template <class T>
struct CodingKeyNames {
  static constexpr std::array<std::string_view, keyCount<T>> names = [] {
    std::array<std::string_view, keyCount<T>> out{};
    std::apply(
        [&](const auto&... k) {
          std::size_t i = 0;
          ((out[i++] = k.name), ...);
        },
        T::codingKeys);
    return out;
  }();
};

/// A record's coding keys in a collision-free hash table, so that a key in a reply is matched with one
/// hash and one comparison however many keys the record has.
template <class T>
struct KeyTable : NameTable<CodingKeyNames<T>::names> {};

/// Calls f(std::integral_constant<std::size_t, I>{}) for the key index I equal to the runtime `index`.
template <class T, class F>
constexpr void visitKeyIndex(int index, F&& f) {
  visitIndex<keyCount<T>>(index, std::forward<F>(f));
}

/// Calls f(key) for the key with runtime index `index`.
template <class T, class F>
constexpr void visitKey(int index, F&& f) {
  visitKeyIndex<T>(index, [&](auto i) { f(std::get<decltype(i)::value>(T::codingKeys)); });
}

}  // namespace detail

/// The index of the coding key whose JSON key is exactly `text`, or std::nullopt. (Keys have no integer form.)
template <Codable T>
constexpr std::optional<std::size_t> codingKeyIndex(std::string_view text) noexcept {
  const int index = detail::KeyTable<T>::find(text);
  if (index < 0) return std::nullopt;
  return static_cast<std::size_t>(index);
}

}  // namespace qb
