// qb::JSONEncoder: Typed-face records to compact JSON text.
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/detail/JsonBuffer.hpp>
#include <QBComponentAPI/frame/detail/TypedCodec.hpp>
#include <charconv>
#include <cstring>
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
  void beginObject() { open('{'); }
  void endObject() { close('}'); }
  void beginArray() { open('['); }
  void endArray() { close(']'); }
  void key(std::string_view name);
  /// A key that needs no escape, given with its quotes and colon.
  void quotedKey(std::string_view text) {
    write(text.data(), text.size());
    needComma_ = false;
  }
  void writeNull() { write("null", 4); }
  void writeBool(bool b) { b ? write("true", 4) : write("false", 5); }
  void writeInt64(std::int64_t i) {
    char* p = out_.reserve(21);
    if (needComma_) *p++ = ',';
    out_.advance(std::to_chars(p, p + 20, i).ptr);
    needComma_ = true;
  }
  void writeDouble(double d);
  void writeString(std::string_view s) {
    separate();
    writeQuoted(s);
  }
  void writeAny(const JsonValue& value);

 private:
  // The comma before a key or a value that follows another member or element; none after an opening
  // bracket or a key.
  void separate() {
    if (needComma_) out_.put(',');
    needComma_ = true;
  }
  void write(const char* text, std::size_t n) {
    char* p = out_.reserve(n + 1);
    if (needComma_) *p++ = ',';
    std::memcpy(p, text, n);
    out_.advance(p + n);
    needComma_ = true;
  }
  void open(char bracket) {
    write(&bracket, 1);
    needComma_ = false;
  }
  void close(char bracket) {
    out_.put(bracket);
    needComma_ = true;
  }
  void writeQuoted(std::string_view s);

  JsonBuffer out_;
  DateStrategy strategy_;
  bool needComma_ = false;
};

/// The storage an encode writes into: the thread's own buffer, kept from one encode to the next so that
/// a text is not grown through a series of fresh allocations each time, or a string of its own when the
/// thread's buffer is already in use (an encode within an encode).
class EncodeBuffer {
 public:
  EncodeBuffer() noexcept;
  ~EncodeBuffer();
  EncodeBuffer(const EncodeBuffer&) = delete;
  EncodeBuffer& operator=(const EncodeBuffer&) = delete;

  std::string& text() noexcept { return *text_; }
  /// The text written, as a string of its own. A large one takes the buffer's storage with it, and the
  /// thread's next encode starts afresh.
  std::string take();

 private:
  std::string own_;
  std::string* text_;
  bool threads_;
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
  detail::EncodeBuffer buffer;
  {
    detail::JsonTextSink sink(buffer.text(), dateStrategy);
    detail::encodeValue(sink, value);
  }  // the sink cuts the text to what was written
  return buffer.take();
}

}  // namespace qb
