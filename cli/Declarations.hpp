// What the tool reads from the faces' declarations: each Dictionary-face field with its property type and
// need, each Typed-face coding key with its member type. The registry's descriptions and the wire
// reference are both built from these walks. Heavy templates: included only by the .cpp files that
// instantiate them over one domain (cli/domains/), after that domain's face headers.
#pragma once

#include <QBComponentAPI/Catalogues.hpp>
#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/Date.hpp>
#include <QBComponentAPI/frame/Declarations.hpp>
#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/Enum.hpp>
#include <QBComponentAPI/frame/HostTypes.hpp>
#include <QBComponentAPI/frame/JSONDecoder.hpp>
#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/frame/QBMessageBase.hpp>
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

#include "cli/Registry.hpp"

namespace qb::cli::decl {

using qb::TypeTag;

// The property type of the Dictionary face's upload, which it keeps outside its parameter table.
using AvatarProperty = std::optional<std::vector<std::byte>>;

// The Dictionary face carries its upload outside the parameter table, as the avatar property.
template <class Message>
constexpr bool takesAvatar = requires(Message& m) {
  m.setAvatar(std::vector<std::byte>{});
};

// The tool's word for what a face requires of a key.
constexpr Need needOf(KeyNeed need) {
  switch (need) {
    case KeyNeed::required: return Need::required;
    case KeyNeed::zeroWhenAbsent: return Need::alwaysSent;
    case KeyNeed::optional: break;
  }
  return Need::optional;
}

// f(key, required, TypeTag<T>) for each field of a Dictionary-face table (a model's fields, a message's
// parameters or results), T being the property type, in declared order.
template <class Table, class F>
void forEachDictionaryField(const Table& table, F&& f) {
  forEachDictionaryKey(table, [&]<class T>(std::string_view key, KeyNeed need, TypeTag<T> type) {
    f(key, need == KeyNeed::required, type);
  });
}

// f(key, need, TypeTag<T>) for each parameter of a Dictionary-face message, the avatar last when it
// takes one.
template <class Message, class F>
void forEachDictionaryParameter(F&& f) {
  forEachDictionaryKey(Message::qbParams(), [&]<class T>(std::string_view key, KeyNeed need, TypeTag<T> type) {
    f(key, needOf(need), type);
  });
  if constexpr (takesAvatar<Message>) f(std::string_view("avatar"), Need::optional, TypeTag<AvatarProperty>{});
}

// f(key, need, TypeTag<M>, isFile) for each coding key of a Typed-face record, M being the member type, in
// declared order. An optional member is optional, any other required.
template <Codable Record, class F>
void forEachCodingKey(F&& f) {
  qb::forEachCodingKey<Record>([&]<class M>(std::string_view key, KeyNeed need, TypeTag<M> type, bool isFile) {
    f(key, needOf(need), type, isFile);
  });
}

// The name of a Dictionary-face property type in a description.
template <class T>
std::string dictionaryType() {
  using Kind = qb::detail::DictKind<T>;
  if constexpr (Kind::integer)
    return "integer";
  else if constexpr (Kind::model)
    return "record";
  else if constexpr (Kind::modelList || Kind::list)
    return "list";
  else if constexpr (Kind::map)
    return "map";
  else if constexpr (Kind::data)
    return "file";
  else
    return "text";
}

// The name of a Typed-face member type in a description.
template <class M>
std::string typedType() {
  if constexpr (IsOptional<M>::value)
    return typedType<typename M::value_type>();
  else if constexpr (std::is_same_v<M, APIFile>)
    return "file";
  else if constexpr (std::is_same_v<M, std::string>)
    return "text";
  else if constexpr (std::is_same_v<M, bool>)
    return "boolean";
  else if constexpr (std::is_same_v<M, Date>)
    return "date";
  else if constexpr (std::is_enum_v<M> || std::is_integral_v<M>)
    return "integer";
  else if constexpr (std::is_floating_point_v<M>)
    return "number";
  else if constexpr (Codable<M>)
    return "record";
  else if constexpr (IsVector<M>::value)
    return "list";
  else if constexpr (IsStringMap<M>::value)
    return "map";
  else
    return "value";
}

// What an endpoint takes and answers, from its declarations (see Entry::describe).
template <class A>
Description describe() {
  using Message = typename A::DictionaryMessage;
  using Request = typename A::TypedRequest;
  Description d;
  auto parameter = [&](std::string_view key) -> ParameterInfo& {
    for (auto& p : d.parameters) {
      if (p.key == key) return p;
    }
    ParameterInfo& added = d.parameters.emplace_back();
    added.key = std::string(key);
    return added;
  };
  if constexpr (hasFace<Message>) {
    forEachDictionaryParameter<Message>([&]<class T>(std::string_view key, Need need, TypeTag<T>) {
      ParameterInfo& p = parameter(key);
      p.type = dictionaryType<T>();
      p.dictionary = need;
    });
    forEachDictionaryField(Message::qbResults(),
                           [&](std::string_view key, bool, auto) { d.dictionaryReplyKeys.emplace_back(key); });
  }
  if constexpr (hasFace<Request>) {
    forEachCodingKey<Request>([&]<class M>(std::string_view key, Need need, TypeTag<M>, bool) {
      ParameterInfo& p = parameter(key);
      // The Typed declaration is the more precise one: an enumeration rather than any value.
      p.type = typedType<M>();
      p.typed = need;
    });
    using Response = typename Request::Response;
    if constexpr (Codable<Response>) {
      forEachCodingKey<Response>([&](std::string_view key, Need, auto, bool) { d.typedReplyKeys.emplace_back(key); });
    }
  }
  return d;
}

}  // namespace qb::cli::decl
