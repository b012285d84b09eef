#include <QBComponentAPI/frame/JSONEncoder.hpp>
#include <QBComponentAPI/frame/detail/Simdjson.hpp>

namespace qb::detail {

namespace {
struct ThreadEncodeBuffer {
  std::string text;
  bool inUse = false;
};
thread_local ThreadEncodeBuffer threadEncodeBuffer;
}  // namespace

EncodeBuffer::EncodeBuffer() noexcept : text_(&own_), threads_(!threadEncodeBuffer.inUse) {
  if (threads_) {
    threadEncodeBuffer.inUse = true;
    threadEncodeBuffer.text.clear();
    text_ = &threadEncodeBuffer.text;
  }
}

EncodeBuffer::~EncodeBuffer() {
  if (threads_) threadEncodeBuffer.inUse = false;
}

std::string EncodeBuffer::take() {
  // The thread keeps a buffer as large as the parser keeps its own.
  if (!threads_ || text_->capacity() > kLargeBuffer) return std::move(*text_);
  return *text_;
}

void JsonTextSink::writeDouble(double d) {
  separate();
  if (!appendJsonDouble(out_, d)) throw EncodingError({}, "Unable to encode a non-finite Double directly in JSON.");
}

void JsonTextSink::writeAny(const JsonValue& value) {
  separate();
  appendJson(out_, value);
}

namespace {
[[noreturn]] void throwNotUtf8() { throw EncodingError({}, "Unable to encode a string that is not valid UTF-8."); }
}  // namespace

void JsonTextSink::key(std::string_view name) {
  if (!appendJsonKey(out_, name, needComma_)) throwNotUtf8();
  needComma_ = false;
}

void JsonTextSink::writeQuoted(std::string_view s) {
  if (!appendQuotedJson(out_, s)) throwNotUtf8();
}

void checkWritable(std::string_view text) {
  if (!simdjson::validate_utf8(text.data(), text.size())) throwNotUtf8();
}

[[noreturn]] void throwMismatch(std::string_view expected, const JsonValue& found) {
  throw DecodingError(
      DecodingError::Kind::typeMismatch, {},
      "Expected to decode " + std::string(expected) + " but found " + std::string(describeKind(found)) + " instead.");
}

}  // namespace qb::detail
