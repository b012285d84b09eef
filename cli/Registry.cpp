#include "cli/Registry.hpp"

#include <QBComponentAPI/QBComponentAPI.hpp>
#include <QBComponentAPI/frame/detail/DictEngine.hpp>

namespace qb::cli {
namespace {

// Builds the message from the arguments exactly as a model reads a map, sends it, and returns its results.
template <class Message>
JsonValue sendDictionary(host::Client& client, const Arguments& args) {
  auto message = std::make_shared<Message>();
  detail::readFields<&Message::qbParams>(*message, args.values);
  if constexpr (requires { message->setAvatar(std::vector<std::byte>{}); }) {
    if (const auto file = args.files.find("avatar"); file != args.files.end()) message->setAvatar(file->second);
  }
  client.send(*message);
  return detail::tableToDictionary(Message::qbResults(), *message);
}

// Decodes the request record from the arguments, sends it, and returns the response encoded again.
template <class Request>
JsonValue sendTyped(host::Client& client, const Arguments& args) {
  Request request = JsonValueDecoder().decode<Request>(JsonValue(args.values));
  if constexpr (requires { request.avatar; }) {
    if (const auto file = args.files.find("avatar"); file != args.files.end()) request.avatar = APIFile{file->second};
  }
  return JsonValueEncoder().encode(client.send(request));
}

template <class A>
Entry entry() {
  using Message = typename A::DictionaryMessage;
  using Request = typename A::TypedRequest;
  Entry e{&A::endpoint, std::string(A::endpoint.path.substr(3)), nullptr, nullptr};
  if constexpr (hasFace<Message>) e.dictionary = &sendDictionary<Message>;
  if constexpr (hasFace<Request>) e.typed = &sendTyped<Request>;
  return e;
}

template <class... A>
std::vector<Entry> entries(TypeList<A...>) {
  return {entry<A>()...};
}

}  // namespace

const std::vector<Entry>& registry() {
  static const std::vector<Entry> all = entries(AllEndpoints{});
  return all;
}

const Entry* findEntry(std::string_view name) {
  for (const auto& e : registry()) {
    if (e.name == name || e.endpoint->path == name) return &e;
  }
  return nullptr;
}

}  // namespace qb::cli
