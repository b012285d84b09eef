// A codec between Typed-face records and qb::JsonValue: for hosts that already hold a parsed reply, or
// that need a request as a map (for example to put it in a query string or a form body).
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/TypedCodec.hpp>
#include <vector>

namespace qb {

namespace detail {

[[noreturn]] void throwMismatch(std::string_view expected, const JsonValue& found);
void checkWritable(std::string_view text);

/// A decoder node over a JsonValue; records are read in declared order.
class JsonValueNode {
 public:
  JsonValueNode(const JsonValue& value, DateStrategy strategy) : value_(&value), strategy_(strategy) {}

  bool isNull() const noexcept { return value_->is_null(); }
  DateStrategy dateStrategy() const noexcept { return strategy_; }
  bool readBool() const {
    if (!value_->is_bool()) throwMismatch("Bool", *value_);
    return value_->get_bool();
  }
  std::int64_t readInt64() const {
    if (value_->is_int64()) return value_->get_int64();
    if (value_->is_uint64() && value_->get_uint64() <= static_cast<std::uint64_t>(INT64_MAX)) {
      return static_cast<std::int64_t>(value_->get_uint64());
    }
    throwMismatch("Int64", *value_);
  }
  double readDouble() const {
    if (value_->is_double()) return value_->get_double();
    if (value_->is_int64()) return static_cast<double>(value_->get_int64());
    if (value_->is_uint64()) return static_cast<double>(value_->get_uint64());
    throwMismatch("Double", *value_);
  }
  std::string_view readString() const {
    if (!value_->is_string()) throwMismatch("String", *value_);
    return value_->get_string();
  }
  void readAny(JsonValue& out) const { out = *value_; }
  void expectObject() const {
    if (!value_->is_object()) throwMismatch("Dictionary", *value_);
  }
  std::optional<JsonValueNode> find(std::string_view key) const {
    const JsonValue* child = value_->get_object().if_contains(key);
    if (!child) return std::nullopt;
    return JsonValueNode(*child, strategy_);
  }
  template <class F>
  void forEachField(F&& f) const {
    expectObject();
    for (const auto& member : value_->get_object()) {
      JsonValueNode child(member.value(), strategy_);
      f(std::string_view(member.key()), child);
    }
  }
  template <class F>
  void forEachElement(F&& f) const {
    if (!value_->is_array()) throwMismatch("Array", *value_);
    for (const auto& element : value_->get_array()) {
      JsonValueNode child(element, strategy_);
      f(child);
    }
  }

 private:
  const JsonValue* value_;
  DateStrategy strategy_;
};

/// An encoder sink that builds a JsonValue.
class JsonValueSink {
 public:
  explicit JsonValueSink(DateStrategy strategy) : strategy_(strategy) {}

  DateStrategy dateStrategy() const noexcept { return strategy_; }
  void beginObject() { open(JsonValue(JsonMap())); }
  void beginArray() { open(JsonValue(JsonList())); }
  void endObject() { close(); }
  void endArray() { close(); }
  void key(std::string_view name) {
    checkWritable(name);  // the keys of a map are the app's text
    key_ = name;
  }
  void writeNull() { put(JsonValue(nullptr)); }
  void writeBool(bool b) { put(JsonValue(b)); }
  void writeInt64(std::int64_t i) { put(JsonValue(i)); }
  void writeDouble(double d) { put(JsonValue(d)); }
  void writeString(std::string_view s) {
    checkWritable(s);
    put(JsonValue(s));
  }
  void writeAny(const JsonValue& v) {
    if (!isWritableJson(v)) {
      throw EncodingError({},
                          "The value cannot be written as JSON (a non-finite number, invalid UTF-8 or nesting too "
                          "deep).");
    }
    put(v);
  }

  JsonValue take() { return std::move(root_); }

 private:
  void open(JsonValue container) {
    stack_.push_back(std::move(container));
    keys_.push_back(std::move(key_));
  }
  void close() {
    JsonValue done = std::move(stack_.back());
    stack_.pop_back();
    key_ = std::move(keys_.back());
    keys_.pop_back();
    put(std::move(done));
  }
  void put(JsonValue v) {
    if (stack_.empty()) {
      root_ = std::move(v);
    } else if (stack_.back().is_object()) {
      stack_.back().get_object().insert_or_assign(key_, std::move(v));
    } else {
      stack_.back().get_array().push_back(std::move(v));
    }
  }

  DateStrategy strategy_;
  JsonValue root_;
  std::vector<JsonValue> stack_;
  std::vector<std::string> keys_;
  std::string key_;
};

}  // namespace detail

/// Decodes a record (or list, or map) from an already parsed JsonValue. Throws DecodingError, naming the
/// first failing field in declared order with its full coding path.
class JsonValueDecoder {
 public:
  DateStrategy dateStrategy = DateStrategy::secondsSince1970;

  template <class T>
  T decode(const JsonValue& value) const;
};

/// Encodes a record into a JsonValue (a JsonMap for records). Throws EncodingError for a non-finite
/// double, invalid UTF-8 in a text or an enumeration value that is none of its cases.
class JsonValueEncoder {
 public:
  DateStrategy dateStrategy = DateStrategy::secondsSince1970;

  template <class T>
  JsonValue encode(const T& value) const;
};

/// Defined out of the classes, so that they are not inline: a domain's umbrella header then declares
/// them `extern template` for its records, and only the domain's own .cpp file compiles them.
template <class T>
T JsonValueDecoder::decode(const JsonValue& value) const {
  T out{};
  detail::JsonValueNode node(value, dateStrategy);
  detail::decodeValue(node, out);
  return out;
}

template <class T>
JsonValue JsonValueEncoder::encode(const T& value) const {
  detail::JsonValueSink sink(dateStrategy);
  detail::encodeValue(sink, value);
  return sink.take();
}

}  // namespace qb
