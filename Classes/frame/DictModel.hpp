// The Dictionary face: model and message classes over string-keyed JSON maps.
//
// A class declares its properties and, once, the table that maps them to JSON keys; the engine in
// frame/detail/DictEngine.hpp does all reading, writing, checking and parameter building:
//
//   class QBAPIAutoUpdate final : public qb::QBAPIModel {
//     QB_DICT_MODEL(QBAPIAutoUpdate, "AutoUpdate")
//     QB_VALUE(hasUpdate, HasUpdate)
//     QB_VALUE(forceUpdate, ForceUpdate)
//     QB_FIELDS(QB_REQUIRED(hasUpdate, "has_update"), QB_REQUIRED(forceUpdate, "force_update"))
//   };
//
// and its .cpp defines the operations with QB_DICT_MODEL_DEFINE(QBAPIAutoUpdate).
#pragma once

#include <QBComponentAPI/frame/Atomic.hpp>
#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/QBMessageBase.hpp>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <tuple>
#include <type_traits>
#include <vector>

namespace qb {
namespace detail {
class ReplyValue;
}

/// The common face of every Dictionary-face model.
class QBAPIModel {
 public:
  virtual ~QBAPIModel() = default;
  QBAPIModel(const QBAPIModel&) = delete;
  QBAPIModel& operator=(const QBAPIModel&) = delete;

  /// A new map with every present property under its JSON key (integers always, nested models as
  /// their own maps, lists through qb::toDictionary).
  virtual JsonMap toDictionary() const = 0;
  /// toDictionary() as indented JSON text; std::nullopt when it cannot be written as JSON (for example
  /// a non-finite number or invalid UTF-8 that the app set).
  std::optional<std::string> toJsonString() const;
  /// The class name without its prefix ("AutoUpdate"), as used in ParameterCheckFailException reasons.
  virtual std::string_view modelName() const = 0;

 protected:
  QBAPIModel() = default;
};

/// The "integer" reading of a value: an integer as it is (clamped to int64), a double truncated toward
/// zero and clamped (NaN gives 0), a boolean 0 or 1, a text by its leading decimal integer (leading white
/// space skipped, optional sign, 0 without digits, clamped on overflow). Null, lists and maps throw
/// JsonTypeError naming `key`.
std::int64_t toInteger(const JsonValue& value, std::string_view key = {});

/// The host's list-level operations: each model as its own map, plain elements as they are.
template <class Model>
JsonList toDictionary(const std::vector<std::shared_ptr<Model>>& models) {
  JsonList list;
  list.reserve(models.size());
  for (const auto& model : models) list.push_back(model ? JsonValue(model->toDictionary()) : JsonValue(nullptr));
  return list;
}
JsonList toDictionary(const JsonList& list);
/// A list as indented JSON text, or std::nullopt when it cannot be written as JSON.
template <class Model>
std::optional<std::string> toJsonString(const std::vector<std::shared_ptr<Model>>& models) {
  return toPrettyJson(JsonValue(toDictionary(models)));
}
std::optional<std::string> toJsonString(const JsonList& list);

namespace dict {

/// One entry of a class's field table: the JSON key, the property's name (used in reasons), where the
/// property lives, and whether it is required.
template <class Owner, class T>
struct Field {
  std::string_view key;
  std::string_view name;
  Atomic<T> Owner::*member;
  bool required;

  /// Whether a message's getParams always puts this parameter in its map: an integer always (it cannot be
  /// absent), any other parameter when it is required (absent, getParams raises instead).
  constexpr bool alwaysSent() const noexcept { return required || std::is_same_v<T, std::int64_t>; }
};

template <class Owner, class T>
constexpr Field<Owner, T> field(std::string_view key, std::string_view name, Atomic<T> Owner::*member, bool required) {
  return {key, name, member, required};
}

template <class... F>
constexpr std::tuple<F...> fields(F... entries) {
  return std::tuple<F...>{entries...};
}

}  // namespace dict

/// Base of every message class `Derived`. Derived opens with QB_DICT_MESSAGE (its endpoint and action
/// name) and declares its parameter and result tables with QB_PARAMS and QB_RESULTS.
template <class Derived>
class DictMessage : public QBMessageBase {
 public:
  std::string api() const final { return std::string(Derived::kEndpoint.path); }
  std::vector<std::string> methods() const final { return {std::string(Derived::kEndpoint.lowerVerb())}; }
  bool forceHttps() const final { return Derived::kEndpoint.forceHttps(); }
  bool binaryResponse() const final { return false; }
  bool needAuth() const final { return Derived::kEndpoint.needAuth(); }
  bool mustAuth() const final { return Derived::kEndpoint.mustAuth(); }

 protected:
  /// A new message with the given values stored in the given properties, in order:
  /// \code
  /// return make<&Self::languageCode_, &Self::countryCode_>(languageCode, std::move(countryCode));
  /// \endcode
  template <auto... Members, class... Args>
  static std::shared_ptr<Derived> make(Args&&... values) {
    static_assert(sizeof...(Members) == sizeof...(Args));
    auto message = std::make_shared<Derived>();
    ((message.get()->*Members).store(std::forward<Args>(values)), ...);
    return message;
  }
};

}  // namespace qb

// --- Declaration macros -------------------------------------------------------------------------------

#define QB_DICT_PROPERTY_(Type, name, Name)                       \
 public:                                                          \
  Type name() const { return name##_.load(); }                    \
  void set##Name(Type value) { name##_.store(std::move(value)); } \
                                                                  \
 private:                                                         \
  ::qb::Atomic<Type> name##_;                                     \
                                                                  \
 public:

/// A plain value: text, number, boolean, kept exactly as the reply gave it.
#define QB_VALUE(name, Name) QB_DICT_PROPERTY_(std::optional<::qb::JsonValue>, name, Name)
/// An integer or enumeration: never absent, 0 when the key is missing.
#define QB_INTEGER(name, Name) QB_DICT_PROPERTY_(std::int64_t, name, Name)
/// A nested model (empty pointer when absent).
#define QB_MODEL(Class, name, Name) QB_DICT_PROPERTY_(std::shared_ptr<Class>, name, Name)
/// A list of nested models.
#define QB_MODEL_LIST(Class, name, Name) \
  QB_DICT_PROPERTY_(std::optional<std::vector<std::shared_ptr<Class>>>, name, Name)
/// A list of plain values, elements kept as they came.
#define QB_LIST(name, Name) QB_DICT_PROPERTY_(std::optional<::qb::JsonList>, name, Name)
/// A map, kept only when the reply holds a JSON object there.
#define QB_MAP(name, Name) QB_DICT_PROPERTY_(std::optional<::qb::JsonMap>, name, Name)
/// File bytes (multipart uploads only; never part of a parameter map).
#define QB_DATA(name, Name) QB_DICT_PROPERTY_(std::optional<std::vector<std::byte>>, name, Name)

/// Field-table entries.
#define QB_REQUIRED(name, key) ::qb::dict::field(key, #name, &Self::name##_, true)
#define QB_OPTIONAL(name, key) ::qb::dict::field(key, #name, &Self::name##_, false)
/// A required field whose reasons name it `reasonName` instead of its property name (for a record whose
/// reason text has always spelt the field otherwise).
#define QB_REQUIRED_AS(name, key, reasonName) ::qb::dict::field(key, reasonName, &Self::name##_, true)

/// The tables: model fields, message parameters, message results (each in declared order).
#define QB_FIELDS(...) \
  static constexpr auto qbFields() { return ::qb::dict::fields(__VA_ARGS__); }
#define QB_PARAMS(...) \
  static constexpr auto qbParams() { return ::qb::dict::fields(__VA_ARGS__); }
#define QB_RESULTS(...) \
  static constexpr auto qbResults() { return ::qb::dict::fields(__VA_ARGS__); }

/// Opens a model class (derived from qb::QBAPIModel): `Name` is the class name without its prefix.
/// initWithJsonObject throws ParameterCheckFailException for the first required field (in declared order)
/// that is absent or null, and JsonTypeError for a value that cannot be read as its kind (a null or a
/// list in an integer field, a non-map where a nested model is read).
#define QB_DICT_MODEL(Class, Name)                                                                \
 public:                                                                                          \
  using Self = Class;                                                                             \
  static constexpr std::string_view kModelName = Name;                                            \
  Class() = default;                                                                              \
  static std::shared_ptr<Class> initWithJsonObject(const ::qb::JsonMap& map);                     \
  /* The same from a map the caller gives up: values are moved, not copied. */                    \
  static std::shared_ptr<Class> initWithJsonObject(::qb::JsonMap&& map);                          \
  static std::shared_ptr<Class> initWithJsonObject(const ::qb::JsonValue& value);                 \
  /* The same from an object of a parsed reply (the Dictionary face's own reading of a reply). */ \
  static std::shared_ptr<Class> initWithReply(const ::qb::detail::ReplyValue& object);            \
  ::qb::JsonMap toDictionary() const override;                                                    \
  std::string_view modelName() const override { return kModelName; }

/// Opens a message class: `Action` names it in reasons ("GetConfig"), `endpoint` is its qb::Endpoint.
#define QB_DICT_MESSAGE(Class, Action, endpoint)                           \
 public:                                                                   \
  using Self = Class;                                                      \
  static constexpr std::string_view kModelName = Action;                   \
  static constexpr ::qb::Endpoint kEndpoint = endpoint;                    \
  Class() = default;                                                       \
  friend class ::qb::DictMessage<Class>;                                   \
  ::qb::JsonMap getParams() const override;                                \
  ::qb::QBMessageBase& parseResponse(const ::qb::JsonMap& reply) override; \
  ::qb::QBMessageBase& parseResponse(::qb::JsonMap&& reply) override;      \
  ::qb::QBMessageBase& parseResponseBytes(::qb::JsonText reply) override;
