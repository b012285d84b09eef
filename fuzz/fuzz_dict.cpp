// Dictionary face: arbitrary bytes as a reply for every message (read from the bytes as the host reads
// them, and from their full parse), as a reply map for every model and message (read from the map, from a
// map given up and from the map's text), and as the values of every message's parameters. Allowed
// outcomes: DecodingError from the parse, ParameterCheckFailException and JsonTypeError from reading;
// anything else, and any value read from a reply that cannot be written back exactly, is a finding.
#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <cstdlib>
#include <string>
#include <variant>

#include "fuzz/Registry.hpp"

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

// What was read from a parsed reply can always be written, and reads back equal.
void checkWritable(const qb::JsonMap& map) {
  const auto text = qb::toPrettyJson(qb::JsonValue(map));
  check(text.has_value());
  check(qb::parseJsonMap(*text) == map);
}

// What reading gave: the dictionary it produced, or which error it raised.
template <class Read>
std::variant<qb::JsonMap, std::string> outcome(Read&& read) {
  try {
    return read();
  } catch (const qb::ParameterCheckFailException& e) {
    return std::string("check: ") + e.what();
  } catch (const qb::JsonTypeError& e) {
    return std::string("type: ") + e.what();
  } catch (const qb::DecodingError& e) {
    return std::string("parse: ") + e.what();
  }
}

// Any bytes read in the reply's order give what their full parse read as a map gives: the same results or
// the same error, whether the bytes are JSON or not, repeat keys or nest deep.
template <class Message>
void fuzzMessageBytes(std::string_view bytes) {
  auto fromMap = std::make_shared<Message>();
  const auto expected = outcome([&] {
    fromMap->parseResponse(qb::parseJsonMap(bytes));
    return qb::detail::tableToDictionary(Message::qbResults(), *fromMap);
  });
  auto fromBytes = std::make_shared<Message>();
  check(outcome([&] {
          fromBytes->parseResponseBytes(bytes);
          return qb::detail::tableToDictionary(Message::qbResults(), *fromBytes);
        }) == expected);
}

// A model read from a borrowed reply and from one given up (values moved out) must be the same.
template <class Model>
void fuzzModel(const qb::JsonMap& reply) {
  const auto borrowed = outcome([&] { return Model::initWithJsonObject(reply)->toDictionary(); });
  qb::JsonMap copy = reply;
  check(outcome([&] { return Model::initWithJsonObject(std::move(copy))->toDictionary(); }) == borrowed);
  if (const auto* map = std::get_if<qb::JsonMap>(&borrowed)) checkWritable(*map);
}

template <class Message>
void fuzzMessage(const qb::JsonMap& reply) {
  auto message = std::make_shared<Message>();
  const auto borrowed = outcome([&] {
    message->parseResponse(reply);
    return qb::detail::tableToDictionary(Message::qbResults(), *message);
  });
  auto moved = std::make_shared<Message>();
  qb::JsonMap copy = reply;
  check(outcome([&] {
          moved->parseResponse(std::move(copy));
          return qb::detail::tableToDictionary(Message::qbResults(), *moved);
        }) == borrowed);
  // Read from its bytes, as the host reads a reply, the same map gives the same results or the same error.
  auto parsed = std::make_shared<Message>();
  check(outcome([&] {
          parsed->parseResponseBytes(qb::toJson(reply));
          return qb::detail::tableToDictionary(Message::qbResults(), *parsed);
        }) == borrowed);
  // The same map as parameter values, each read the way a model field of its kind is.
  try {
    qb::detail::readFields<&Message::qbParams>(*message, reply);
  } catch (const qb::ParameterCheckFailException&) {
    return;
  } catch (const qb::JsonTypeError&) {
    return;
  }
  try {
    const qb::JsonMap params = message->getParams();
    check(!qb::toJson(params).empty());
    check(message->getParams() == params);
  } catch (const qb::ParameterCheckFailException&) {
  }
  check(message->methods().size() == 1);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const std::string_view json(reinterpret_cast<const char*>(data + 1), size - 1);
  const std::uint8_t selector = data[0];
  if (selector & 0x80) {
    qb::fuzz::dispatch(qb::fuzz::DictMessages{}, selector, [&]<class T>() { fuzzMessageBytes<T>(json); });
  }
  qb::JsonMap reply;
  try {
    reply = qb::parseJsonMap(json);
  } catch (const qb::DecodingError&) {
    return 0;
  }
  if (selector & 0x80) {
    qb::fuzz::dispatch(qb::fuzz::DictMessages{}, selector, [&]<class T>() { fuzzMessage<T>(reply); });
  } else {
    qb::fuzz::dispatch(qb::fuzz::DictModels{}, selector, [&]<class T>() { fuzzModel<T>(reply); });
  }
  return 0;
}
