// qb::JSONEncoder: Typed-face records to compact JSON text.
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/TypedCodec.hpp>
#include <charconv>
#include <string>
#include <vector>

namespace qb {

namespace detail {

/// Appends JSON text to a string. Strings are checked for valid UTF-8 and escaped; numbers are written in
/// their shortest exact form.
class JsonTextSink {
 public:
  JsonTextSink(std::string& out, DateStrategy strategy) : out_(out), strategy_(strategy) {}

  DateStrategy dateStrategy() const noexcept { return strategy_; }
  void beginObject() {
    comma();
    out_ += '{';
    first_ = true;
  }
  void endObject() {
    out_ += '}';
    first_ = false;
  }
  void beginArray() {
    comma();
    out_ += '[';
    first_ = true;
  }
  void endArray() {
    out_ += ']';
    first_ = false;
  }
  void key(std::string_view name) {
    comma();
    writeQuoted(name);
    out_ += ':';
    afterKey_ = true;
  }
  /// A key that needs no escape, given with its quotes and colon.
  void quotedKey(std::string_view text) {
    comma();
    out_ += text;
    afterKey_ = true;
  }
  void writeNull() {
    comma();
    out_ += "null";
  }
  void writeBool(bool b) {
    comma();
    out_ += b ? "true" : "false";
  }
  void writeInt64(std::int64_t i) {
    comma();
    char buffer[24];
    out_.append(buffer, std::to_chars(buffer, buffer + sizeof buffer, i).ptr);
  }
  void writeDouble(double d);
  void writeString(std::string_view s) {
    comma();
    writeQuoted(s);
  }
  void writeAny(const JsonValue& value);

 private:
  void comma() {
    if (afterKey_) {
      afterKey_ = false;
      first_ = false;
      return;
    }
    if (!first_) out_ += ',';
    first_ = false;
  }
  void writeQuoted(std::string_view s);

  std::string& out_;
  DateStrategy strategy_;
  bool first_ = true;
  bool afterKey_ = false;
};

}  // namespace detail

class JSONEncoder {
 public:
  DateStrategy dateStrategy = DateStrategy::secondsSince1970;

  /// Compact JSON text of `value` (a record, list or map); absent optional members leave no key.
  /// Throws EncodingError for a non-finite double, invalid UTF-8 in a text or an enumeration value that is
  /// none of its cases. Allocates the result.
  template <class T>
  std::string encode(const T& value) const;
};

/// Defined out of the class, so that it is not inline: a domain's umbrella header then declares it
/// `extern template` for its records, and only the domain's own .cpp file compiles it.
template <class T>
std::string JSONEncoder::encode(const T& value) const {
  std::string out;
  detail::JsonTextSink sink(out, dateStrategy);
  detail::encodeValue(sink, value);
  return out;
}

}  // namespace qb
