#include <QBComponentAPI/frame/detail/JSONDecoderImpl.hpp>

namespace qb::detail {

void throwStreamFailure() { throw StreamFailure{}; }

simdjson::ondemand::document& openDocument(JsonText json) {
  thread_local simdjson::ondemand::parser parser;
  thread_local std::string buffer;
  thread_local simdjson::ondemand::document document;
  // The parser's buffers take about seven times a reply's size, mostly untouched.
  const std::string_view text = json.text;
  if (givesBack(parser.capacity(), text.size())) parser = simdjson::ondemand::parser();
  // Bytes kept with their padding are read where they are; any others are copied first.
  const char* at = json.padded ? text.data() : copyPadded(buffer, text);
  const std::size_t room = json.padded ? PaddedBytes::kPadding : simdjson::SIMDJSON_PADDING;
  simdjson::padded_string_view padded(at, text.size(), text.size() + room);
  if (parser.iterate(padded).get(document)) throwStreamFailure();
  return document;
}

void streamInto(simdjson::ondemand::value& value, JsonValue& slot, std::size_t depth) {
  simdjson::ondemand::json_type type;
  if (value.type().get(type)) throwStreamFailure();
  switch (type) {
    case simdjson::ondemand::json_type::object: {
      if (depth >= kMaxJsonDepth) throwStreamFailure();
      simdjson::ondemand::object object;
      if (value.get_object().get(object)) throwStreamFailure();
      JsonMap& map = slot.emplace_object();
      for (auto result : object) {
        simdjson::ondemand::field field;
        if (std::move(result).get(field)) throwStreamFailure();
        // The key stays valid while the document is read: it points into the reply or the parser's
        // text buffer. A repeated key keeps its first place and its last value.
        auto [at, inserted] = map.emplace(fieldKey(field), nullptr);
        if (!inserted) at->value().emplace_null();
        streamInto(field.value(), at->value(), depth + 1);
      }
      return;
    }
    case simdjson::ondemand::json_type::array: {
      if (depth >= kMaxJsonDepth) throwStreamFailure();
      simdjson::ondemand::array array;
      if (value.get_array().get(array)) throwStreamFailure();
      JsonList& list = slot.emplace_array();
      for (auto result : array) {
        simdjson::ondemand::value element;
        if (std::move(result).get(element)) throwStreamFailure();
        streamInto(element, list.emplace_back(nullptr), depth + 1);
      }
      return;
    }
    case simdjson::ondemand::json_type::string: slot.emplace_string() = readText(value); return;
    case simdjson::ondemand::json_type::number: {
      const StreamNumber number = readNumber(value);
      switch (number.kind) {
        case StreamNumber::Kind::int64: slot.emplace_int64() = number.i; return;
        case StreamNumber::Kind::uint64: slot.emplace_uint64() = number.u; return;
        case StreamNumber::Kind::real: slot.emplace_double() = number.d; return;
      }
      throwStreamFailure();
    }
    case simdjson::ondemand::json_type::boolean: slot.emplace_bool() = readBoolean(value); return;
    case simdjson::ondemand::json_type::null:
      readNull(value);
      slot.emplace_null();
      return;
  }
  throwStreamFailure();
}

}  // namespace qb::detail
