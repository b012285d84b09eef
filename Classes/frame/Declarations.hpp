/// \file
/// Reading the declarations of both faces: each key of a Dictionary-face field table or a Typed-face
/// record, with its type and what its face requires of it. The tool, the mock service, the reference
/// pages and the tests all read the faces through these two walks, so they agree on what "required"
/// means.
#pragma once

#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>
#include <string_view>
#include <tuple>

namespace qb {

/// What a face requires of one key.
enum class KeyNeed {
  optional,        ///< may be absent
  required,        ///< a QB_REQUIRED field; a Typed-face member that is not std::optional
  zeroWhenAbsent,  ///< a Dictionary-face integer that is not required: read, and sent, as 0 when absent
};

/// Stands for a type in the walks' callbacks.
template <class T>
struct TypeTag {
  using type = T;
};

/// Calls `f(key, need, TypeTag<T>{})` for each field of a Dictionary-face table (`qbFields()`,
/// `qbParams()` or `qbResults()` of a class), T being the property's type, in declared order.
template <class Table, class F>
void forEachDictionaryKey(const Table& table, F&& f) {
  std::apply(
      [&](const auto&... field) {
        (
            [&]<class Owner, class T>(const dict::Field<Owner, T>& entry) {
              f(entry.key,
                entry.required       ? KeyNeed::required
                : entry.alwaysSent() ? KeyNeed::zeroWhenAbsent
                                     : KeyNeed::optional,
                TypeTag<T>{});
            }(field),
            ...);
      },
      table);
}

/// Calls `f(key, need, TypeTag<M>{}, isFile)` for each coding key of a Typed-face record, request or
/// response, M being the member's type, in declared order. A file member travels as a multipart part,
/// never under its key.
template <class Record, class F>
void forEachCodingKey(F&& f) {
  std::apply(
      [&](const auto&... key) {
        (
            [&]<class K>(const K& entry) {
              using M = typename K::Member;
              f(std::string_view(entry.name), IsOptional<M>::value ? KeyNeed::optional : KeyNeed::required,
                TypeTag<M>{}, K::isFile);
            }(key),
            ...);
      },
      Record::codingKeys);
}

}  // namespace qb
