// The registry's entries, built from a domain's declarations: each endpoint's argument checks and its
// sends through either face. Heavy templates: included only by the files under cli/domains/, each of which
// instantiates them over one domain.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <tuple>
#include <vector>

#include "cli/Declarations.hpp"
#include "cli/OpenApiGenerator.hpp"

namespace qb::cli {

namespace entryParts {

// A value as an error message shows it: its JSON text, cut at 40 characters.
std::string shown(const JsonValue& value);
bool isInteger(const JsonValue& value);
[[noreturn]] void throwUnknown(std::string_view key, const Endpoint& endpoint, std::string_view face);
[[noreturn]] void throwNotAFile(std::string_view key);
[[noreturn]] void throwFileAsValue(std::string_view key);
// The reason of a decoding failure of the arguments, for the key the user typed.
std::string decodingReason(const DecodingError& error);

// Every key must be one of the message's parameters, integers must be integers (the face would read any
// other value as some integer, "english" as 0), files go only to the file parameter, and every required
// parameter is given.
template <class A>
void checkDictionary(const Arguments& args) {
  using Message = typename A::DictionaryMessage;
  for (const auto& item : args.values) {
    const std::string_view key = item.key();
    bool known = false;
    detail::forEachField(Message::qbParams(), [&]<class Owner, class T>(const dict::Field<Owner, T>& field) {
      if (field.key != key) return;
      known = true;
      if constexpr (std::is_same_v<T, std::int64_t>) {
        if (!isInteger(item.value())) {
          throw ParameterError(std::string(key), "takes an integer, not " + shown(item.value()));
        }
      }
    });
    if (known) continue;
    if (decl::takesAvatar<Message> && key == "avatar") throwFileAsValue(key);
    throwUnknown(key, A::endpoint, "Dictionary");
  }
  for (const auto& given : args.files) {
    if (!(decl::takesAvatar<Message> && given.first == "avatar")) throwNotAFile(given.first);
  }
  detail::forEachField(Message::qbParams(), [&](const auto& field) {
    const auto* value = args.values.if_contains(field.key);
    if (field.required && (!value || value->is_null()))
      throw ParameterError(std::string(field.key), "required, but not given");
  });
}

// Builds the message from the arguments exactly as a model reads a map, sends it, and returns its results.
template <class A>
JsonValue sendDictionary(host::Client& client, const Arguments& args) {
  using Message = typename A::DictionaryMessage;
  checkDictionary<A>(args);
  auto message = std::make_shared<Message>();
  detail::readFields<&Message::qbParams>(*message, args.values);
  if constexpr (decl::takesAvatar<Message>) {
    if (const auto file = args.files.find("avatar"); file != args.files.end()) message->setAvatar(file->second);
  }
  client.send(*message);
  return detail::tableToDictionary(Message::qbResults(), *message);
}

// Decodes the request record from the arguments, refusing keys it does not have and files for members
// that are not files, and puts each file into its member.
template <class A>
typename A::TypedRequest typedRequest(const Arguments& args) {
  using Request = typename A::TypedRequest;
  for (const auto& item : args.values) {
    const std::string_view key = item.key();
    bool known = false, file = false;
    std::apply([&](const auto&... k) { ((k.name == key ? (known = true, file = k.isFile) : false), ...); },
               Request::codingKeys);
    if (!known) throwUnknown(key, A::endpoint, "Typed");
    if (file) throwFileAsValue(key);
  }
  for (const auto& given : args.files) {
    const std::string& key = given.first;
    bool file = false;
    std::apply([&](const auto&... k) { ((k.isFile && k.name == key ? (file = true) : false), ...); },
               Request::codingKeys);
    if (!file) throwNotAFile(key);
  }
  Request request = [&] {
    try {
      return JsonValueDecoder().decode<Request>(JsonValue(args.values));
    } catch (const DecodingError& e) {
      const CodingPath& path = e.codingPath();
      const auto* key = path.empty() ? nullptr : std::get_if<std::string>(&path.front());
      throw ParameterError(key ? *key : std::string("?"), decodingReason(e));
    }
  }();
  std::apply(
      [&](const auto&... k) {
        (
            [&](const auto& key) {
              if constexpr (std::remove_cvref_t<decltype(key)>::isFile) {
                if (const auto f = args.files.find(std::string(key.name)); f != args.files.end()) {
                  request.*key.member = APIFile{f->second};
                }
              }
            }(k),
            ...);
      },
      Request::codingKeys);
  return request;
}

template <class A>
void checkTyped(const Arguments& args) {
  (void)typedRequest<A>(args);
}

// Decodes the request record from the arguments, sends it, and returns the response encoded again.
template <class A>
JsonValue sendTyped(host::Client& client, const Arguments& args) {
  return JsonValueEncoder().encode(client.send(typedRequest<A>(args)));
}

template <class A>
Entry entry() {
  using Message = typename A::DictionaryMessage;
  using Request = typename A::TypedRequest;
  Entry e{&A::endpoint,      std::string(A::endpoint.path.substr(3)), nullptr, nullptr, nullptr, nullptr,
          &decl::describe<A>};
  if constexpr (hasFace<Message>) {
    e.dictionary = &sendDictionary<A>;
    e.checkDictionary = &checkDictionary<A>;
  }
  if constexpr (hasFace<Request>) {
    e.typed = &sendTyped<A>;
    e.checkTyped = &checkTyped<A>;
  }
  return e;
}

// One entry per path: a further Dictionary-face message of an endpoint is reached through the first.
template <class... A>
std::vector<Entry> entries(TypeList<A...> all) {
  std::vector<Entry> out;
  (
      [&] {
        if constexpr (!repeatsPath<A>(all)) out.push_back(entry<A>());
      }(),
      ...);
  return out;
}

}  // namespace entryParts

template <class Endpoints>
std::vector<Entry> domainEntries() {
  return entryParts::entries(Endpoints{});
}

template <class Endpoints, class Records>
void addDomainToReference(openapi::Generator& generator) {
  generator.addDomain<Endpoints, Records>();
}

}  // namespace qb::cli

/// The tool's part of one domain (qb::<domain>::Endpoints and Records): its registry entries and its part of
/// the wire reference. Used once per domain, in cli/domains/, after that domain's face headers.
#define QB_CLI_DOMAIN(domain)                                                                  \
  template std::vector<::qb::cli::Entry> qb::cli::domainEntries<::qb::domain::Endpoints>();    \
  template void qb::cli::addDomainToReference<::qb::domain::Endpoints, ::qb::domain::Records>( \
      ::qb::cli::openapi::Generator&);
