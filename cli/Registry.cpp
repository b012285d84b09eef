#include "cli/Registry.hpp"

#include <algorithm>
#include <limits>

#include "cli/Declarations.hpp"

namespace qb::cli {

ParameterError::ParameterError(std::string key, const std::string& reason)
    : Error("parameter " + key + ": " + reason), key_(std::move(key)) {}

namespace {

std::string shown(const JsonValue& value) {
  const std::string text = toJson(JsonValue(value));
  return text.size() > 40 ? text.substr(0, 37) + "..." : text;
}

bool isInteger(const JsonValue& value) {
  return value.is_int64() || (value.is_uint64() && value.get_uint64() <= static_cast<std::uint64_t>(
                                                                             std::numeric_limits<std::int64_t>::max()));
}

[[noreturn]] void throwUnknown(std::string_view key, const Endpoint& endpoint, std::string_view face) {
  throw ParameterError(std::string(key), "not a parameter of " + std::string(endpoint.path) + " in the " +
                                             std::string(face) + " face (see qbapi describe)");
}

[[noreturn]] void throwNotAFile(std::string_view key) {
  throw ParameterError(std::string(key), "not a file parameter, so it cannot be given as @file");
}

[[noreturn]] void throwFileAsValue(std::string_view key) {
  throw ParameterError(std::string(key), "a file parameter: give it as " + std::string(key) + "=@path");
}

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

// The reason of a decoding failure of the arguments, for the key the user typed.
std::string decodingReason(const DecodingError& error) {
  const CodingPath& path = error.codingPath();
  std::string where = path.size() > 1 ? " (at " + renderCodingPath(path) + ")" : "";
  switch (error.kind()) {
    case DecodingError::Kind::keyNotFound:
      return path.size() > 1 ? "lacks a required key" + where : "required, but not given";
    case DecodingError::Kind::valueNotFound: return "cannot be null" + where;
    default: return error.debugDescription() + where;
  }
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

std::string endpointTable() {
  std::string table = "| Endpoint | Verb | Session | Dictionary face | Typed face |\n|---|---|---|---|---|\n";
  std::vector<EndpointNames> rows;
  for (const auto& domain : kCatalogueEndpointNames) {
    for (const EndpointNames& line : domain) {
      const auto same = std::find_if(rows.begin(), rows.end(), [&](const EndpointNames& row) {
        return row.endpoint->path == line.endpoint->path;
      });
      if (same == rows.end()) {
        rows.push_back(line);
      } else {
        // Only a further Dictionary-face message repeats a path; it is listed with the first.
        rows.push_back(EndpointNames{same->endpoint, line.message, {}});
      }
    }
  }
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const Endpoint& e = *rows[i].endpoint;
    if (i > 0 && rows[i - 1].endpoint->path == e.path) continue;
    std::string messages = rows[i].message.empty() ? "" : "`" + std::string(rows[i].message) + "`";
    for (std::size_t j = i + 1; j < rows.size() && rows[j].endpoint->path == e.path; ++j) {
      messages += ", `" + std::string(rows[j].message) + "`";
    }
    const char* session = e.auth == Auth::required ? "required" : e.auth == Auth::optional ? "optional" : "none";
    table += "| " + std::string(e.path) + " | " + std::string(e.upperVerb()) + " | " + session + " | " +
             (messages.empty() ? "-" : messages) + " | " +
             (rows[i].request.empty() ? "-" : "`" + std::string(rows[i].request) + "`") + " |\n";
  }
  return table;
}

}  // namespace qb::cli
