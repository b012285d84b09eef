// The Dictionary face's reading of a reply in order, over the parser's On-Demand values (the Typed face's
// parser and its readers of texts, numbers and keys).
#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>
#include <QBComponentAPI/frame/detail/ReplyValue.hpp>
#include <cstring>
#include <exception>
#include <type_traits>

namespace qb::detail {

void throwReplyRetry() { throwStreamFailure(); }

namespace {

// Objects and arrays this close to the parser's nesting limit are left to the full parse, which draws the
// line exactly.
constexpr std::size_t kLevelMargin = 8;

void checkLevel(std::size_t level) {
  if (level + kLevelMargin >= kMaxJsonDepth) throwStreamFailure();
}

}  // namespace

// A ReplyValue holds a simdjson::ondemand::value's bytes (its iterator's place in the document).
struct ReplyValueAccess {
  static_assert(sizeof(simdjson::ondemand::value) == sizeof(ReplyValue::Handle));
  static_assert(std::is_trivially_copyable_v<simdjson::ondemand::value>);

  static simdjson::ondemand::value value(const ReplyValue& value) noexcept {
    simdjson::ondemand::value out;
    std::memcpy(static_cast<void*>(&out), &value.handle_, sizeof out);
    return out;
  }
  static ReplyValue of(const simdjson::ondemand::value& value, std::size_t level) noexcept {
    ReplyValue out;
    std::memcpy(&out.handle_, static_cast<const void*>(&value), sizeof value);
    out.level_ = level;
    return out;
  }
  static simdjson::ondemand::json_type type(const ReplyValue& value) {
    simdjson::ondemand::json_type type;
    if (ReplyValueAccess::value(value).type().get(type)) throwStreamFailure();
    return type;
  }
};

namespace {

// Reads a value only to check that it is valid JSON, as the full parse would check it: an object or an
// array through the same walk as the models' (which checks each member or element left unread).
void checkValue(simdjson::ondemand::value& value, std::size_t level) {
  simdjson::ondemand::json_type type;
  if (value.type().get(type)) throwStreamFailure();
  switch (type) {
    case simdjson::ondemand::json_type::object:
      ReplyValueAccess::of(value, level).forEachMember([](std::string_view, const ReplyValue&) {});
      return;
    case simdjson::ondemand::json_type::array:
      ReplyValueAccess::of(value, level).forEachElement([](const ReplyValue&) {});
      return;
    case simdjson::ondemand::json_type::string: readText(value); return;
    case simdjson::ondemand::json_type::number: readNumber(value); return;
    case simdjson::ondemand::json_type::boolean: readBoolean(value); return;
    case simdjson::ondemand::json_type::null: readNull(value); return;
  }
  throwStreamFailure();
}

// Checks and passes over a value its reader left unread: the parser still stands on its first token.
void passOver(simdjson::ondemand::value& value, std::size_t level) {
  const char* at = nullptr;
  if (!value.current_location().get(at) && at == value.raw_json_token().data()) checkValue(value, level);
}

}  // namespace

bool ReplyValue::isNull() const {
  bool null = false;
  if (ReplyValueAccess::value(*this).is_null().get(null)) throwStreamFailure();
  return null;
}

bool ReplyValue::isObject() const { return ReplyValueAccess::type(*this) == simdjson::ondemand::json_type::object; }

bool ReplyValue::isArray() const { return ReplyValueAccess::type(*this) == simdjson::ondemand::json_type::array; }

JsonValue ReplyValue::value() const {
  simdjson::ondemand::value value = ReplyValueAccess::value(*this);
  return streamToValue(value, level_ + kLevelMargin);
}

void ReplyValue::members(MemberFn f, void* context) const {
  checkLevel(level_);
  simdjson::ondemand::object object;
  if (ReplyValueAccess::value(*this).get_object().get(object)) throwStreamFailure();
  for (auto result : object) {
    simdjson::ondemand::field field;
    if (std::move(result).get(field)) throwStreamFailure();
    const std::string_view key = fieldKey(field);
    f(context, key, ReplyValueAccess::of(field.value(), level_ + 1));
    passOver(field.value(), level_ + 1);
  }
}

void ReplyValue::elements(ElementFn f, void* context) const {
  checkLevel(level_);
  simdjson::ondemand::array array;
  if (ReplyValueAccess::value(*this).get_array().get(array)) throwStreamFailure();
  for (auto result : array) {
    simdjson::ondemand::value element;
    if (std::move(result).get(element)) throwStreamFailure();
    f(context, ReplyValueAccess::of(element, level_ + 1));
    passOver(element, level_ + 1);
  }
}

bool readReplyObject(JsonText bytes, void (*read)(void*, const ReplyValue&), void* context) {
  try {
    simdjson::ondemand::document& document = openDocument(bytes);
    simdjson::ondemand::value root;
    if (document.get_value().get(root)) return false;
    const ReplyValue object = ReplyValueAccess::of(root, 0);
    if (!object.isObject()) return false;
    read(context, object);
    passOver(root, 0);
    // Only a reply read to its end counts: trailing content is the full parse's to report.
    const char* rest = nullptr;
    return document.current_location().get(rest) != simdjson::SUCCESS;
  } catch (const StreamFailure&) {
    return false;
  } catch (const std::exception&) {
    // A fault the reader found (a missing required field, a value of the wrong kind): the full parse
    // finds it again, or the first of several in declared order, or none when a later repeated key
    // replaces the faulty value.
    return false;
  }
}

}  // namespace qb::detail
