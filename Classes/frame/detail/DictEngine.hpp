// The Dictionary-face engine: reading, writing, checking and parameter building for any class that
// declares its field tables with the macros of frame/DictModel.hpp. Included only by .cpp files.
#pragma once

#include <type_traits>
#include <utility>

#include "frame/DictModel.hpp"

namespace qb::detail {

template <class T>
struct DictKind {
  static constexpr bool plain = false, integer = false, model = false, modelList = false, list = false,
                        map = false, data = false;
};
template <>
struct DictKind<std::optional<JsonValue>> : DictKind<void> {
  static constexpr bool plain = true;
};
template <>
struct DictKind<std::int64_t> : DictKind<void> {
  static constexpr bool integer = true;
};
template <class M>
struct DictKind<std::shared_ptr<M>> : DictKind<void> {
  static constexpr bool model = true;
  using Model = M;
};
template <class M>
struct DictKind<std::optional<std::vector<std::shared_ptr<M>>>> : DictKind<void> {
  static constexpr bool modelList = true;
  using Model = M;
};
template <>
struct DictKind<std::optional<JsonList>> : DictKind<void> {
  static constexpr bool list = true;
};
template <>
struct DictKind<std::optional<JsonMap>> : DictKind<void> {
  static constexpr bool map = true;
};
template <>
struct DictKind<std::optional<std::vector<std::byte>>> : DictKind<void> {
  static constexpr bool data = true;
};

[[noreturn]] void throwNotA(std::string_view expected, std::string_view key, const JsonValue& value);

// The value under `key`, or nullptr when the key is absent or holds JSON null.
inline const JsonValue* lookup(const JsonMap& map, std::string_view key) {
  const JsonValue* value = map.if_contains(key);
  return value && !value->is_null() ? value : nullptr;
}

inline const JsonMap& asMap(const JsonValue& value, std::string_view key) {
  if (!value.is_object()) throwNotA("an object", key, value);
  return value.get_object();
}

inline const JsonList& asList(const JsonValue& value, std::string_view key) {
  if (!value.is_array()) throwNotA("an array", key, value);
  return value.get_array();
}

template <class M>
std::vector<std::shared_ptr<M>> readModelList(const JsonValue& value, std::string_view key) {
  const JsonList& list = asList(value, key);
  std::vector<std::shared_ptr<M>> models;
  models.reserve(list.size());
  for (const JsonValue& element : list) {
    // The error names the element: "faqs[2]".
    if (!element.is_object()) {
      throwNotA("an object", std::string(key) + '[' + std::to_string(models.size()) + ']', element);
    }
    models.push_back(M::initWithJsonObject(element.get_object()));
  }
  return models;
}

// Reads one field as initWithJsonObject does and returns whether it is present.
template <class Owner, class T>
bool readField(Owner& owner, const dict::Field<Owner, T>& field, const JsonMap& map) {
  using Kind = DictKind<T>;
  Atomic<T>& cell = owner.*field.member;
  if constexpr (Kind::integer) {
    // Never null-checked: a null here is a fault of the reply and toInteger reports it.
    const JsonValue* value = map.if_contains(field.key);
    cell.store(value ? toInteger(*value, field.key) : 0);
    return true;
  } else {
    const JsonValue* value = lookup(map, field.key);
    if constexpr (Kind::map) {
      // The one type check of the face: a map field keeps only a map.
      if (!value || !value->is_object()) return false;
      cell.store(value->get_object());
      return true;
    } else {
      if (!value) return false;
      if constexpr (Kind::plain) {
        cell.store(*value);
      } else if constexpr (Kind::model) {
        cell.store(Kind::Model::initWithJsonObject(asMap(*value, field.key)));
      } else if constexpr (Kind::modelList) {
        cell.store(readModelList<typename Kind::Model>(*value, field.key));
      } else if constexpr (Kind::list) {
        cell.store(asList(*value, field.key));
      } else {
        static_assert(!Kind::data, "file data is never read from a map");
      }
      return true;
    }
  }
}

// The dictionary form of a present property, or nothing when it is absent.
template <class T>
std::optional<JsonValue> dictionaryValue(const T& value) {
  using Kind = DictKind<T>;
  if constexpr (Kind::integer) {
    return JsonValue(value);
  } else if constexpr (Kind::model) {
    if (!value) return std::nullopt;
    return JsonValue(value->toDictionary());
  } else if constexpr (Kind::modelList || Kind::list) {
    if (!value) return std::nullopt;
    return JsonValue(toDictionary(*value));
  } else if constexpr (Kind::plain || Kind::map) {
    if (!value) return std::nullopt;
    return JsonValue(*value);
  } else {
    static_assert(!Kind::data, "file data has no dictionary form");
  }
}

// The parameter-map form of a present parameter: records and lists as JSON text, maps as compact text.
template <class T>
std::optional<JsonValue> parameterValue(const T& value, std::string_view key) {
  using Kind = DictKind<T>;
  if constexpr (Kind::integer || Kind::plain) {
    return dictionaryValue(value);
  } else if constexpr (Kind::map) {
    if (!value) return std::nullopt;
    return JsonValue(toJson(*value));
  } else {
    static_assert(!Kind::data, "file data travels as a multipart body, never as a parameter");
    std::optional<std::string> text;
    if constexpr (Kind::model) {
      if (!value) return std::nullopt;
      text = value->toJsonString();
    } else {
      if (!value) return std::nullopt;
      text = toJsonString(*value);
    }
    if (!text) throw EncodingError({std::string(key)}, "The parameter cannot be written as JSON text.");
    return JsonValue(std::move(*text));
  }
}

template <class Tuple, class F>
void forEachField(const Tuple& table, F&& f) {
  std::apply([&](const auto&... field) { (f(field), ...); }, table);
}

}  // namespace qb::detail

namespace qb::detail {

template <class Model>
std::shared_ptr<Model> modelFromMap(const JsonMap& map) {
  auto model = std::make_shared<Model>();
  forEachField(Model::qbFields(), [&](const auto& field) {
    if (!readField(*model, field, map) && field.required) {
      throw ParameterCheckFailException::missing(field.name, Model::kModelName);
    }
  });
  return model;
}

template <class Tuple, class Owner>
JsonMap tableToDictionary(const Tuple& table, const Owner& owner) {
  JsonMap map;
  forEachField(table, [&](const auto& field) {
    if (auto value = dictionaryValue((owner.*field.member).load())) {
      map.insert_or_assign(field.key, std::move(*value));
    }
  });
  return map;
}

template <class Message>
JsonMap messageParams(const Message& message) {
  JsonMap map;
  forEachField(Message::qbParams(), [&](const auto& field) {
    if (auto value = parameterValue((message.*field.member).load(), field.key)) {
      map.insert_or_assign(field.key, std::move(*value));
    } else if (field.required) {
      throw ParameterCheckFailException::missing(field.name, Message::kModelName);
    }
  });
  return map;
}

template <class Message>
void messageParseResponse(Message& message, const JsonMap& reply) {
  forEachField(Message::qbResults(), [&](const auto& field) {
    using T = typename std::remove_reference_t<decltype((message.*field.member))>::value_type_;
    using Kind = DictKind<T>;
    if constexpr (Kind::model || Kind::modelList) {
      // Nested results keep their old value when the reply has nothing there.
      readField(message, field, reply);
    } else {
      // Everything else is stored as received; absent or null clears it.
      if (!readField(message, field, reply)) (message.*field.member).store(T{});
    }
  });
}

}  // namespace qb::detail

// Defines a model's operations; put in the class's .cpp file after including the headers of the nested
// model classes it refers to.
#define QB_DICT_MODEL_DEFINE(Class)                                                                    \
  std::shared_ptr<Class> Class::initWithJsonObject(const ::qb::JsonMap& map) {                         \
    return ::qb::detail::modelFromMap<Class>(map);                                                     \
  }                                                                                                    \
  std::shared_ptr<Class> Class::initWithJsonObject(const ::qb::JsonValue& value) {                     \
    return ::qb::detail::modelFromMap<Class>(::qb::detail::asMap(value, kModelName));                  \
  }                                                                                                    \
  ::qb::JsonMap Class::toDictionary() const { return ::qb::detail::tableToDictionary(qbFields(), *this); }

// Defines a message's getParams and parseResponse; put in the class's .cpp file.
#define QB_DICT_MESSAGE_DEFINE(Class)                                                                  \
  ::qb::JsonMap Class::getParams() const { return ::qb::detail::messageParams(*this); }                \
  ::qb::QBMessageBase& Class::parseResponse(const ::qb::JsonMap& reply) {                              \
    ::qb::detail::messageParseResponse(*this, reply);                                                  \
    return *this;                                                                                      \
  }
