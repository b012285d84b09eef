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

JsonValue streamToValue(simdjson::ondemand::value& value, std::size_t depth) {
  simdjson::ondemand::json_type type;
  if (value.type().get(type)) throwStreamFailure();
  switch (type) {
    case simdjson::ondemand::json_type::object: {
      if (depth >= kMaxJsonDepth) throwStreamFailure();
      simdjson::ondemand::object object;
      if (value.get_object().get(object)) throwStreamFailure();
      JsonMap map;
      for (auto result : object) {
        simdjson::ondemand::field field;
        if (std::move(result).get(field)) throwStreamFailure();
        // The key stays valid while the document is read: it points into the reply or the parser's
        // text buffer.
        map.insert_or_assign(fieldKey(field), streamToValue(field.value(), depth + 1));
      }
      return map;
    }
    case simdjson::ondemand::json_type::array: {
      if (depth >= kMaxJsonDepth) throwStreamFailure();
      simdjson::ondemand::array array;
      if (value.get_array().get(array)) throwStreamFailure();
      JsonList list;
      for (auto result : array) {
        simdjson::ondemand::value element;
        if (std::move(result).get(element)) throwStreamFailure();
        list.push_back(streamToValue(element, depth + 1));
      }
      return list;
    }
    case simdjson::ondemand::json_type::string: return JsonValue(readText(value));
    case simdjson::ondemand::json_type::number: {
      const StreamNumber number = readNumber(value);
      switch (number.kind) {
        case StreamNumber::Kind::int64: return JsonValue(number.i);
        case StreamNumber::Kind::uint64: return JsonValue(number.u);
        case StreamNumber::Kind::real: return JsonValue(number.d);
      }
      throwStreamFailure();
    }
    case simdjson::ondemand::json_type::boolean: {
      bool b;
      if (value.get_bool().get(b)) throwStreamFailure();
      return JsonValue(b);
    }
    case simdjson::ondemand::json_type::null: {
      bool null = false;
      if (value.is_null().get(null) || !null) throwStreamFailure();
      return JsonValue(nullptr);
    }
  }
  throwStreamFailure();
}

}  // namespace qb::detail
