// The Dictionary-face engine: reading, writing, checking and parameter building for any class that
// declares its field tables with the macros of frame/DictModel.hpp. Included only by .cpp files.
#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/detail/NameTable.hpp>
#include <QBComponentAPI/frame/detail/ReplyValue.hpp>
#include <array>
#include <cstddef>
#include <optional>
#include <tuple>
#include <type_traits>
#include <utility>

namespace qb::detail {

template <class T>
struct DictKind {
  static constexpr bool plain = false, integer = false, model = false, modelList = false, list = false, map = false,
                        data = false;
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
[[noreturn]] void throwUnwritableParameter(std::string_view key);

// The engine reads from a reply it borrows (`const JsonMap`), copying values out, or from one it was
// handed (`JsonMap`, from an rvalue), moving them out. V is JsonValue or const JsonValue accordingly.
template <class From, class To>
using Like = std::conditional_t<std::is_const_v<From>, const To, To>;

// The value itself to store: a copy of a borrowed one, the moved value of an owned one.
template <class V>
decltype(auto) take(V& value) {
  if constexpr (std::is_const_v<V>) {
    return static_cast<V&>(value);
  } else {
    return std::move(value);
  }
}

template <class V>
Like<V, JsonMap>& asMap(V& value, std::string_view key) {
  if (!value.is_object()) throwNotA("an object", key, value);
  return value.get_object();
}

template <class V>
Like<V, JsonList>& asList(V& value, std::string_view key) {
  if (!value.is_array()) throwNotA("an array", key, value);
  return value.get_array();
}

template <class M, class V>
std::vector<std::shared_ptr<M>> readModelList(V& value, std::string_view key) {
  auto& list = asList(value, key);
  std::vector<std::shared_ptr<M>> models;
  models.reserve(list.size());
  for (auto& element : list) {
    // The error names the element: "faqs[2]".
    if (!element.is_object()) {
      throwNotA("an object", std::string(key) + '[' + std::to_string(models.size()) + ']', element);
    }
    models.push_back(M::initWithJsonObject(take(element.get_object())));
  }
  return models;
}

// What readValue asks of the reply's value, for a value of a map (V: JsonValue or const JsonValue).
template <class V>
bool isNullValue(V& value) {
  return value.is_null();
}
template <class V>
bool isObjectValue(V& value) {
  return value.is_object();
}
template <class V>
std::int64_t readInteger(V& value, std::string_view key) {
  return toInteger(value, key);
}
template <class V>
decltype(auto) takeMap(V& value) {
  return take(value.get_object());
}
template <class M, class V>
std::shared_ptr<M> readModel(V& value, std::string_view key) {
  return M::initWithJsonObject(take(asMap(value, key)));
}
template <class V>
decltype(auto) readList(V& value, std::string_view key) {
  return take(asList(value, key));
}

// Reads the value of one field as initWithJsonObject does and hands it to put(), by value or as a reference
// to move or copy from; returns whether there was one. `value` is the reply's value under the field's
// key, nullptr when the key is absent: a value of a map or of a parsed reply (ReplyValue), read through
// the operations above and their overloads below. An integer always has a value (0 when absent); the
// others have none when absent or null, and a map field none unless the reply holds a map there. Throws
// as reading the field throws: nothing is handed to put() then.
template <class T, class V, class Put>
bool readValue(std::string_view key, V* value, Put&& put) {
  using Kind = DictKind<T>;
  if constexpr (Kind::integer) {
    // Never null-checked: a null here is a fault of the reply and toInteger reports it.
    put(value ? readInteger(*value, key) : std::int64_t{0});
    return true;
  } else {
    if (value && isNullValue(*value)) value = nullptr;
    if constexpr (Kind::map) {
      // The one type check of the face: a map field keeps only a map.
      if (!value || !isObjectValue(*value)) return false;
      put(takeMap(*value));
      return true;
    } else {
      if (!value) return false;
      if constexpr (Kind::plain) {
        put(take(*value));
      } else if constexpr (Kind::model) {
        put(readModel<typename Kind::Model>(*value, key));
      } else if constexpr (Kind::modelList) {
        put(readModelList<typename Kind::Model>(*value, key));
      } else if constexpr (Kind::list) {
        put(readList(*value, key));
      } else {
        static_assert(!Kind::data, "file data is never read from a reply");
      }
      return true;
    }
  }
}

// Reads one field into its property and returns whether it is present (see readValue).
template <class Owner, class T, class V>
bool readField(Owner& owner, const dict::Field<Owner, T>& field, V* value) {
  Atomic<T>& cell = owner.*field.member;
  return readValue<T>(field.key, value, [&](auto&& read) { cell.store(std::forward<decltype(read)>(read)); });
}

// The keys of a field table (TableFn: a class's qbFields, qbParams or qbResults), in declared order.
template <auto TableFn>
struct TableKeys {
  static constexpr auto table = TableFn();
  static constexpr auto names = std::apply(
      [](const auto&... field) { return std::array<std::string_view, sizeof...(field)>{field.key...}; }, table);
};

// The reply's value under each key of the table (TableFn), in declared order, or nullptr where the key
// is absent. The reply is walked once and its keys matched through a hash table, instead of one search
// of the map per field (a linear scan for small maps).
template <auto TableFn, class Map>
auto fieldValuesIn(Map& map) {
  using Table = NameTable<TableKeys<TableFn>::names>;
  std::array<Like<Map, JsonValue>*, Table::count> values{};
  if constexpr (Table::count > 0) {
    for (auto& entry : map) {
      const int index = Table::find(entry.key());
      if (index >= 0) values[static_cast<std::size_t>(index)] = &entry.value();
    }
  }
  return values;
}

// Calls f(field, value) for each field of the table in declared order, with the reply's value under the
// field's key or nullptr.
template <auto TableFn, class Map, class F>
void forEachFieldIn(Map& map, F&& f) {
  const auto values = fieldValuesIn<TableFn>(map);
  std::size_t index = 0;
  std::apply([&](const auto&... field) { (f(field, values[index++]), ...); }, TableKeys<TableFn>::table);
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

// The parameter-map form of a present parameter: records and lists as JSON text, maps as compact text,
// everything else as it is. Throws EncodingError naming the parameter when it cannot be written as JSON,
// whatever its kind: a map of parameters is always one that JSON text can hold.
template <class T>
std::optional<JsonValue> parameterValue(const T& value, std::string_view key) {
  using Kind = DictKind<T>;
  if constexpr (Kind::integer) {
    return JsonValue(value);
  } else if constexpr (Kind::plain) {
    if (!value) return std::nullopt;
    // Checked as it will be written: one level down, inside the map of parameters.
    if (!isWritableJson(*value, 1)) throwUnwritableParameter(key);
    return *value;
  } else if constexpr (Kind::map) {
    if (!value) return std::nullopt;
    try {
      return JsonValue(toJson(*value));
    } catch (const EncodingError&) {
      throwUnwritableParameter(key);
    }
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
    if (!text) throwUnwritableParameter(key);
    return JsonValue(std::move(*text));
  }
}

template <class Tuple, class F>
void forEachField(const Tuple& table, F&& f) {
  std::apply([&](const auto&... field) { (f(field), ...); }, table);
}

}  // namespace qb::detail

namespace qb::detail {

// Reads every field of the table from the map, as a model's fields are read, without required checks.
template <auto TableFn, class Owner, class Map>
void readFields(Owner& owner, Map& map) {
  forEachFieldIn<TableFn>(map, [&](const auto& field, auto* value) { readField(owner, field, value); });
}

template <class Model, class Map>
std::shared_ptr<Model> modelFromMap(Map& map) {
  auto model = std::make_shared<Model>();
  forEachFieldIn<&Model::qbFields>(map, [&](const auto& field, auto* value) {
    if (!readField(*model, field, value) && field.required) {
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

// The property type of a field-table entry.
template <class F>
struct FieldType;
template <class Owner, class T>
struct FieldType<dict::Field<Owner, T>> {
  using type = T;
};

// Stores one result read by messageParseResponse: nested results keep their old value when the reply has
// nothing there; everything else is stored as received, and absent or null clears it.
template <class Owner, class T>
void storeResult(Owner& owner, const dict::Field<Owner, T>& field, std::optional<T>& read) {
  using Kind = DictKind<T>;
  Atomic<T>& cell = owner.*field.member;
  if (read) {
    cell.store(std::move(*read));
  } else if constexpr (!Kind::model && !Kind::modelList) {
    cell.store(T{});
  }
}

// The same operations for a value of a reply read in order (see ReplyValue), building only what the
// property keeps: a nested model reads its own fields from the reply, never from a map built for it. A
// value of another shape than the property needs ends the reading: the full parse reports it.
inline bool isNullValue(const ReplyValue& value) { return value.isNull(); }
inline bool isObjectValue(const ReplyValue& value) { return value.isObject(); }
inline std::int64_t readInteger(const ReplyValue& value, std::string_view key) { return toInteger(value.value(), key); }
inline JsonValue take(const ReplyValue& value) { return value.value(); }
inline JsonMap takeMap(const ReplyValue& value) { return std::move(value.value().get_object()); }
template <class M>
std::shared_ptr<M> readModel(const ReplyValue& value, std::string_view) {
  if (!value.isObject()) throwReplyRetry();
  return M::initWithReply(value);
}
inline JsonList readList(const ReplyValue& value, std::string_view) {
  if (!value.isArray()) throwReplyRetry();
  return std::move(value.value().get_array());
}
template <class M>
std::vector<std::shared_ptr<M>> readModelList(const ReplyValue& value, std::string_view) {
  if (!value.isArray()) throwReplyRetry();
  std::vector<std::shared_ptr<M>> models;
  value.forEachElement([&](const ReplyValue& element) {
    if (!element.isObject()) throwReplyRetry();
    models.push_back(M::initWithReply(element));
  });
  return models;
}

// Calls read(I, value) for each member of `object` whose key is the I-th of the table (TableFn), in the
// reply's order. Other members are left unread (checked and passed over).
// A repeated key ends the reading: the full parse keeps the last value, with the error the first value
// might have raised never raised.
template <auto TableFn, class Read>
void readReplyFields(const ReplyValue& object, Read&& read) {
  using Table = NameTable<TableKeys<TableFn>::names>;
  if constexpr (Table::count > 0) {
    std::uint64_t seen = 0;
    object.forEachMember([&](std::string_view key, const ReplyValue& value) {
      const int index = Table::find(key);
      if (index < 0) return;
      const std::uint64_t bit = std::uint64_t{1} << index;
      if (seen & bit) throwReplyRetry();
      seen |= bit;
      visitIndex<Table::count>(index, [&](auto i) { read(i, value); });
    });
  }
}

template <class Model>
std::shared_ptr<Model> modelFromReply(const ReplyValue& object) {
  auto model = std::make_shared<Model>();
  std::uint64_t present = 0;
  readReplyFields<&Model::qbFields>(object, [&](auto i, const ReplyValue& value) {
    const auto& field = std::get<decltype(i)::value>(TableKeys<&Model::qbFields>::table);
    using T = typename FieldType<std::remove_cvref_t<decltype(field)>>::type;
    Atomic<T>& cell = (*model).*field.member;
    if (readValue<T>(field.key, &value, [&](auto&& read) { cell.store(std::forward<decltype(read)>(read)); })) {
      present |= std::uint64_t{1} << i;
    }
  });
  std::size_t index = 0;
  forEachField(Model::qbFields(), [&](const auto& field) {
    if (field.required && !(present & (std::uint64_t{1} << index))) {
      throw ParameterCheckFailException::missing(field.name, Model::kModelName);
    }
    ++index;
  });
  return model;
}

// Every result is read into a temporary first and stored only when all were read, so a reply that fails
// part-way (a nested record missing a required field, a value of the wrong shape) leaves the message with
// the results it had. `valueAt(I)` is the reply's value under the I-th result's key (nullptr: absent).
// Values moved out of an owned reply are moved once more into the properties, never copied.
template <class Message, class ValueAt>
void messageReadResults(Message& message, ValueAt&& valueAt) {
  using Keys = TableKeys<&Message::qbResults>;
  using Table = std::remove_cv_t<decltype(Keys::table)>;
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    [[maybe_unused]] std::tuple<std::optional<typename FieldType<std::tuple_element_t<I, Table>>::type>...> read;
    (readValue<typename FieldType<std::tuple_element_t<I, Table>>::type>(
         std::get<I>(Keys::table).key, valueAt(I),
         [&](auto&& value) { std::get<I>(read).emplace(std::forward<decltype(value)>(value)); }),
     ...);
    (storeResult(message, std::get<I>(Keys::table), std::get<I>(read)), ...);
  }
  (std::make_index_sequence<std::tuple_size_v<Table>>{});
}

template <class Message, class Map>
void messageParseResponse(Message& message, Map& reply) {
  [[maybe_unused]] const auto values = fieldValuesIn<&Message::qbResults>(reply);
  messageReadResults(message, [&](std::size_t i) { return values[i]; });
}

// The same from the reply's bytes: the results and their models are read in the reply's order as the
// parser reaches them, and stored only when the whole reply was read; a reply that must be read again
// (see ReplyValue) is parsed in full and read as a map.
template <class Message>
void messageParseReply(Message& message, JsonText bytes) {
  using Keys = TableKeys<&Message::qbResults>;
  using Table = std::remove_cv_t<decltype(Keys::table)>;
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    std::tuple<std::optional<typename FieldType<std::tuple_element_t<I, Table>>::type>...> read;
    const bool whole = readReplyObject(bytes, [&](const ReplyValue& root) {
      readReplyFields<&Message::qbResults>(root, [&](auto i, const ReplyValue& value) {
        constexpr std::size_t at = decltype(i)::value;
        using T = typename FieldType<std::tuple_element_t<at, Table>>::type;
        readValue<T>(std::get<at>(Keys::table).key, &value,
                     [&](auto&& result) { std::get<at>(read).emplace(std::forward<decltype(result)>(result)); });
      });
    });
    if (!whole) {
      JsonMap reply = parseJsonMap(bytes);
      messageParseResponse(message, reply);
      return;
    }
    // An absent integer reads as 0 and an absent value clears its property, as when read from a map.
    (storeResult(message, std::get<I>(Keys::table), std::get<I>(read)), ...);
  }
  (std::make_index_sequence<std::tuple_size_v<Table>>{});
}

}  // namespace qb::detail

// Defines a model's operations; put in the class's .cpp file after including the headers of the nested
// model classes it refers to.
#define QB_DICT_MODEL_DEFINE(Class)                                                     \
  std::shared_ptr<Class> Class::initWithJsonObject(const ::qb::JsonMap& map) {          \
    return ::qb::detail::modelFromMap<Class>(map);                                      \
  }                                                                                     \
  std::shared_ptr<Class> Class::initWithJsonObject(::qb::JsonMap&& map) {               \
    return ::qb::detail::modelFromMap<Class>(map);                                      \
  }                                                                                     \
  std::shared_ptr<Class> Class::initWithJsonObject(const ::qb::JsonValue& value) {      \
    return ::qb::detail::modelFromMap<Class>(::qb::detail::asMap(value, kModelName));   \
  }                                                                                     \
  std::shared_ptr<Class> Class::initWithReply(const ::qb::detail::ReplyValue& object) { \
    return ::qb::detail::modelFromReply<Class>(object);                                 \
  }                                                                                     \
  ::qb::JsonMap Class::toDictionary() const { return ::qb::detail::tableToDictionary(qbFields(), *this); }

// Defines a message's getParams and parseResponse; put in the class's .cpp file.
#define QB_DICT_MESSAGE_DEFINE(Class)                                                   \
  ::qb::JsonMap Class::getParams() const { return ::qb::detail::messageParams(*this); } \
  ::qb::QBMessageBase& Class::parseResponse(const ::qb::JsonMap& reply) {               \
    ::qb::detail::messageParseResponse(*this, reply);                                   \
    return *this;                                                                       \
  }                                                                                     \
  ::qb::QBMessageBase& Class::parseResponse(::qb::JsonMap&& reply) {                    \
    ::qb::detail::messageParseResponse(*this, reply);                                   \
    return *this;                                                                       \
  }                                                                                     \
  ::qb::QBMessageBase& Class::parseResponseBytes(::qb::JsonText reply) {                \
    ::qb::detail::messageParseReply(*this, reply);                                      \
    return *this;                                                                       \
  }

// Defines every Dictionary-face model and message of a domain catalogue (see frame/Catalogue.hpp), and
// checks that each message declares the endpoint of its catalogue line. Expanded once per domain, at
// namespace scope in a .cpp file that includes the domain's Dictionary-face umbrella header.
#define QB_DICT_CHECK_API_BOTH_(constant, path, verb, auth, Message, Request) \
  QB_DICT_CHECK_API_DICT_(constant, path, verb, auth, Message)
#define QB_DICT_CHECK_API_DICT_(constant, path, verb, auth, Message)    \
  static_assert(::qb::sameEndpoint(::qb::Message::kEndpoint, constant), \
                #Message " declares another endpoint than its catalogue line " #constant);
#define QB_DICT_DEFINE_API_BOTH_(constant, path, verb, auth, Message, Request) QB_DICT_MESSAGE_DEFINE(qb::Message)
#define QB_DICT_DEFINE_API_DICT_(constant, path, verb, auth, Message) QB_DICT_MESSAGE_DEFINE(qb::Message)
#define QB_DICT_SKIP_API_TYPED_(constant, path, verb, auth, Request)
#define QB_DICT_DEFINE_RECORD_BOTH_(Dictionary, Typed) QB_DICT_MODEL_DEFINE(qb::Dictionary)
#define QB_DICT_DEFINE_RECORD_DICT_(Dictionary) QB_DICT_MODEL_DEFINE(qb::Dictionary)
#define QB_DICT_SKIP_RECORD_TYPED_(Typed)
#define QB_DICT_DEFINE_DOMAIN(domain, ENDPOINTS, RECORDS)                                \
  namespace qb::domain {                                                                 \
  ENDPOINTS(QB_DICT_CHECK_API_BOTH_, QB_DICT_CHECK_API_DICT_, QB_DICT_SKIP_API_TYPED_)   \
  }                                                                                      \
  ENDPOINTS(QB_DICT_DEFINE_API_BOTH_, QB_DICT_DEFINE_API_DICT_, QB_DICT_SKIP_API_TYPED_) \
  RECORDS(QB_DICT_DEFINE_RECORD_BOTH_, QB_DICT_DEFINE_RECORD_DICT_, QB_DICT_SKIP_RECORD_TYPED_)
