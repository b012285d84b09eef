// The wire reference's generator: it walks the faces' declarations of one domain at a time, so that each
// domain's part is compiled with that domain's headers only (cli/domains/), and a record's change rebuilds
// the part of its own domain. The document itself is put together in OpenApi.cpp.
#pragma once

#include <algorithm>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "cli/Declarations.hpp"

namespace qb::cli::openapi {

using decl::TypeTag;

constexpr std::size_t kNone = static_cast<std::size_t>(-1);

// --- Class names ----------------------------------------------------------------------------------------

// A record's class in each face (empty for a face it lacks).
struct RecordNames {
  std::string_view dictionary, typed;
};

// Each record's class names, in the order of AllRecords. A domain's kClassNames lists the classes of its
// endpoint lines first, then those of its record lines, each in line order, a line with both faces giving
// the Dictionary-face name before the Typed-face one.
std::vector<RecordNames> recordNames();

// The catalogue line of an endpoint.
const EndpointNames& endpointNames(const Endpoint& endpoint);

// A request's response lives beside it under the same name with "Response" for "Request".
std::string responseName(std::string_view request);

// The index in AllRecords of the record whose face class (Dictionary or Typed, by `typed`) is T, or kNone.
template <class T, bool typed, class... R>
constexpr std::size_t recordIndex(TypeList<R...>) {
  std::size_t index = kNone, i = 0;
  (
      [&] {
        using Face = std::conditional_t<typed, typename R::Typed, typename R::Dictionary>;
        if (std::is_same_v<Face, T> && index == kNone) index = i;
        ++i;
      }(),
      ...);
  return index;
}

template <std::size_t I, class List>
struct At;
template <std::size_t I, class First, class... Rest>
struct At<I, TypeList<First, Rest...>> : At<I - 1, TypeList<Rest...>> {};
template <class First, class... Rest>
struct At<0, TypeList<First, Rest...>> {
  using type = First;
};

// --- Schemas --------------------------------------------------------------------------------------------

JsonValue ref(std::string_view name);

JsonValue typeSchema(std::string_view type);

JsonValue integerSchema();

JsonValue binarySchema();

// The schema that also takes null.
JsonValue nullable(JsonValue schema);

JsonList stringList(const std::vector<std::string>& items);

bool contains(const std::vector<std::string>& list, std::string_view item);

const char* needName(Need need);

// Whether a face puts the parameter in every request.
bool alwaysSent(Need need);

// How a schema reads values: as the library reads a reply (null stands for an absent optional member), or as
// a face sends a parameter (an absent one is left out, never sent as null).
enum class Use { read, sent };

// One parameter of an endpoint across its faces.
struct Parameter {
  std::string key;
  JsonValue schema;   // of the value as it is meant: records, lists and maps as themselves
  bool json = false;  // sent as JSON text in a query string or form
  bool file = false;
  Need typed = Need::none;
  std::vector<Need> dictionary;  // one per Dictionary-face message of the path
};

class Generator {
 public:
  /// Adds a domain's paths, in catalogue order, and the schemas of its records (and of whatever they
  /// reach). A path repeated by a further Dictionary-face message is one operation of its domain.
  template <class Endpoints, class Records>
  void addDomain();
  /// The document of every domain added so far.
  JsonMap document();

 private:
  template <class M>
  JsonValue typedSchema();
  template <class T>
  JsonValue dictionarySchema(Use use, bool required);
  template <APIEnumrable E>
  JsonValue enumeration();
  template <std::size_t I>
  JsonValue record();
  template <Codable T>
  JsonValue typedRecord(std::string_view name);
  template <Codable T>
  JsonMap typedObject(std::string_view name);
  template <class Table>
  void addDictionaryFace(JsonMap& schema, const Table& table, std::string_view className);
  template <class Table>
  JsonMap dictionaryObject(const Table& table, std::string_view className);

  template <class A, class Endpoints>
  JsonMap operation();
  template <class A, class Endpoints>
  std::vector<Parameter> parameters(std::vector<std::string_view>& messages);

  std::vector<RecordNames> names_ = recordNames();
  std::map<std::string, JsonMap, std::less<>> schemas_;  // by name, so that components come sorted
  JsonMap paths_;
  JsonList tags_;
  std::vector<std::string> seenTags_;
};

JsonValue dateSchema();

// A Typed-face member as the decoders read it: std::optional takes null, AnyCodable any value.
template <class M>
JsonValue Generator::typedSchema() {
  if constexpr (IsOptional<M>::value)
    return nullable(typedSchema<typename M::value_type>());
  else if constexpr (std::is_same_v<M, AnyCodable>)
    return JsonMap{};
  else if constexpr (std::is_same_v<M, APIFile>)
    return binarySchema();
  else if constexpr (std::is_same_v<M, bool>)
    return typeSchema("boolean");
  else if constexpr (std::is_same_v<M, std::int64_t>)
    return integerSchema();
  else if constexpr (std::is_same_v<M, double>)
    return JsonMap{{"type", "number"}, {"format", "double"}};
  else if constexpr (std::is_same_v<M, std::string>)
    return typeSchema("string");
  else if constexpr (std::is_same_v<M, Date>)
    return dateSchema();
  else if constexpr (APIEnumrable<M>)
    return enumeration<M>();
  else if constexpr (IsVector<M>::value)
    return JsonMap{{"type", "array"}, {"items", typedSchema<typename M::value_type>()}};
  else if constexpr (IsStringMap<M>::value) {
    return JsonMap{{"type", "object"}, {"additionalProperties", typedSchema<typename M::mapped_type>()}};
  } else {
    constexpr std::size_t index = recordIndex<M, true>(AllRecords{});
    static_assert(index != kNone, "a record reached from an endpoint is in no catalogue");
    return record<index>();
  }
}

// A Dictionary-face property. Read: null is absent (but for an integer, where it is an error), and an
// absent required field fails the record. Sent: as getParams puts it, before it turns records and lists
// into JSON text.
template <class T>
JsonValue Generator::dictionarySchema(Use use, bool required) {
  using Kind = qb::detail::DictKind<T>;
  const bool mayBeNull = use == Use::read && !required;
  JsonValue schema;
  if constexpr (Kind::integer) {
    return integerSchema();
  } else if constexpr (Kind::plain) {
    return JsonMap{};  // kept as the reply gives it
  } else if constexpr (Kind::data) {
    return binarySchema();
  } else if constexpr (Kind::map) {
    // Read, anything but an object is dropped as if absent.
    if (mayBeNull) return JsonMap{};
    schema = typeSchema("object");
  } else if constexpr (Kind::list) {
    schema = typeSchema("array");
  } else {
    constexpr std::size_t index = recordIndex<typename Kind::Model, false>(AllRecords{});
    static_assert(index != kNone, "a model reached from an endpoint is in no catalogue");
    JsonValue model = record<index>();
    schema = Kind::model ? model : JsonMap{{"type", "array"}, {"items", model}};
  }
  return mayBeNull ? nullable(std::move(schema)) : schema;
}

template <APIEnumrable E>
JsonValue Generator::enumeration() {
  using Traits = EnumTraits<E>;
  const std::string_view name = Traits::name;
  if (schemas_.find(name) == schemas_.end()) {
    JsonList values, names;
    for (const auto& c : Traits::cases) {
      values.emplace_back(rawValue(c.value));
      names.emplace_back(c.name);
    }
    JsonMap schema{{"type", "integer"}, {"format", "int64"}};
    if constexpr (Traits::fallback.has_value()) {
      // Any integer decodes: one that is no case is read as the fallback.
      schema["description"] = "Values other than the listed ones are read as " +
                              std::string(caseName(*Traits::fallback)) + ", so that a new case never fails a reply.";
      schema["x-enum-values"] = std::move(values);
      schema["x-fallback"] = rawValue(*Traits::fallback);
    } else {
      schema["enum"] = std::move(values);
    }
    schema["x-enum-varnames"] = std::move(names);
    schemas_.emplace(std::string(name), std::move(schema));
  }
  return ref(name);
}

// The I-th catalogue record under its Typed-face name, or its Dictionary-face name when it has no Typed face.
template <std::size_t I>
JsonValue Generator::record() {
  using R = typename At<I, AllRecords>::type;
  using D = typename R::Dictionary;
  using T = typename R::Typed;
  const RecordNames& names = names_.at(I);
  if constexpr (hasFace<D>) {
    // "QBAPIUser" for "User": a name taken from the wrong line would show here.
    if (!names.dictionary.ends_with(D::kModelName)) {
      throw std::logic_error("the record names of the catalogues are out of step at " + std::string(names.dictionary));
    }
  }
  const std::string_view name = hasFace<T> ? names.typed : names.dictionary;
  if (schemas_.find(name) == schemas_.end()) {
    // Taken before the members are walked, so that a record that refers back to itself ends there.
    schemas_.emplace(std::string(name), JsonMap{});
    JsonMap schema;
    if constexpr (hasFace<T>) {
      schema = typedObject<T>(names.typed);
      if constexpr (hasFace<D>) addDictionaryFace(schema, D::qbFields(), names.dictionary);
    } else {
      schema = dictionaryObject(D::qbFields(), names.dictionary);
    }
    schemas_.find(name)->second = std::move(schema);
  }
  return ref(name);
}

// A request or response record, which has no line of its own in the catalogues.
template <Codable T>
JsonValue Generator::typedRecord(std::string_view name) {
  if (schemas_.find(name) == schemas_.end()) schemas_.emplace(std::string(name), typedObject<T>(name));
  return ref(name);
}

// A Typed-face record: every coding key but the files, the required ones being its non-optional members.
template <Codable T>
JsonMap Generator::typedObject(std::string_view name) {
  JsonMap properties;
  std::vector<std::string> required;
  decl::forEachCodingKey<T>([&]<class M>(std::string_view key, Need need, TypeTag<M>, bool file) {
    if (file) return;  // never encoded: it travels as a multipart part
    properties[key] = typedSchema<M>();
    if (need == Need::required) required.emplace_back(key);
  });
  JsonMap schema{{"type", "object"}, {"properties", std::move(properties)}};
  if (!required.empty()) schema["required"] = stringList(required);
  schema["x-typed-record"] = name;
  return schema;
}

// What the Dictionary-face class of a Typed-face record reads: its class, its required keys, and the keys only
// one face has (a key only the Dictionary face reads is described as that face reads it).
template <class Table>
void Generator::addDictionaryFace(JsonMap& schema, const Table& table, std::string_view className) {
  JsonMap& properties = schema["properties"].as_object();
  std::vector<std::string> typedKeys, dictionaryKeys, required, onlyDictionary, onlyTyped;
  for (const auto& p : properties) typedKeys.emplace_back(p.key());
  decl::forEachDictionaryField(table, [&]<class T>(std::string_view key, bool isRequired, TypeTag<T>) {
    dictionaryKeys.emplace_back(key);
    if (isRequired) required.emplace_back(key);
    if (!contains(typedKeys, key)) {
      properties[key] = dictionarySchema<T>(Use::read, isRequired);
      onlyDictionary.emplace_back(key);
    }
  });
  for (const auto& key : typedKeys) {
    if (!contains(dictionaryKeys, key)) onlyTyped.push_back(key);
  }
  schema["x-dictionary-class"] = className;
  schema["x-dictionary-required"] = stringList(required);
  if (!onlyDictionary.empty()) schema["x-only-dictionary"] = stringList(onlyDictionary);
  if (!onlyTyped.empty()) schema["x-only-typed"] = stringList(onlyTyped);
}

// A record or reply of the Dictionary face alone.
template <class Table>
JsonMap Generator::dictionaryObject(const Table& table, std::string_view className) {
  JsonMap properties;
  std::vector<std::string> required;
  decl::forEachDictionaryField(table, [&]<class T>(std::string_view key, bool isRequired, TypeTag<T>) {
    properties[key] = dictionarySchema<T>(Use::read, isRequired);
    if (isRequired) required.emplace_back(key);
  });
  JsonMap schema{{"type", "object"}, {"properties", std::move(properties)}};
  if (!required.empty()) schema["required"] = stringList(required);
  schema["x-dictionary-class"] = className;
  schema["x-dictionary-required"] = stringList(required);
  return schema;
}

// --- Operations -----------------------------------------------------------------------------------------

template <class T>
constexpr bool travelsAsJson() {
  if constexpr (IsOptional<T>::value) {
    return travelsAsJson<typename T::value_type>();
  } else {
    using Kind = qb::detail::DictKind<T>;
    return Codable<T> || IsVector<T>::value || IsStringMap<T>::value || Kind::model || Kind::modelList || Kind::list ||
           Kind::map;
  }
}

// Every parameter of the endpoint's path in each face: the Dictionary-face order first (the endpoint's own
// message, then any further message of its path), then the keys only the Typed face has. The schema is the
// Typed face's where it has the key (an enumeration rather than any integer), else the Dictionary face's.
// `messages` receives the Dictionary-face class names.
template <class A, class Endpoints>
std::vector<Parameter> Generator::parameters(std::vector<std::string_view>& messages) {
  using Request = typename A::TypedRequest;
  std::vector<Parameter> out;
  auto find = [&](std::string_view key) -> Parameter* {
    for (auto& p : out) {
      if (p.key == key) return &p;
    }
    return nullptr;
  };
  forEachType(Endpoints{}, [&]<class B>() {
    using Message = typename B::DictionaryMessage;
    if constexpr (hasFace<Message>) {
      if (B::endpoint.path != A::endpoint.path) return;
      const std::size_t index = messages.size();
      messages.push_back(endpointNames(B::endpoint).message);
      for (auto& p : out) p.dictionary.resize(index + 1, Need::none);
      decl::forEachDictionaryParameter<Message>([&]<class T>(std::string_view key, Need need, TypeTag<T>) {
        Parameter* p = find(key);
        if (!p) {
          p = &out.emplace_back();
          p->key = std::string(key);
          p->schema = dictionarySchema<T>(Use::sent, true);
          p->json = travelsAsJson<T>();
          p->file = qb::detail::DictKind<T>::data;
          p->dictionary.resize(index + 1, Need::none);
        }
        p->dictionary[index] = need;
      });
    }
  });
  if constexpr (hasFace<Request>) {
    decl::forEachCodingKey<Request>([&]<class M>(std::string_view key, Need need, TypeTag<M>, bool file) {
      Parameter* p = find(key);
      if (!p) {
        p = &out.emplace_back();
        p->key = std::string(key);
        p->dictionary.resize(messages.size(), Need::none);
      }
      // The value as sent: an absent optional member is left out, never sent as null.
      if constexpr (IsOptional<M>::value) {
        p->schema = typedSchema<typename M::value_type>();
      } else {
        p->schema = typedSchema<M>();
      }
      p->json = travelsAsJson<M>();
      p->file = file;
      p->typed = need;
    });
  }
  return out;
}

JsonMap bodySchema(const std::vector<Parameter>& params, bool (*include)(const Parameter&),
                   bool (*required)(const Parameter&), JsonMap& encoding, bool jsonEncoding);

template <class A, class Endpoints>
JsonMap Generator::operation() {
  using Request = typename A::TypedRequest;
  const Endpoint& endpoint = A::endpoint;
  const EndpointNames& line = endpointNames(endpoint);
  const std::string_view path = endpoint.path.substr(3);  // "user/get_config"
  std::string operationId(path);
  std::replace(operationId.begin(), operationId.end(), '/', '_');

  std::vector<std::string_view> messages;
  const std::vector<Parameter> params = parameters<A, Endpoints>(messages);
  const bool typed = hasFace<Request>;
  const bool dictionary = !messages.empty();
  // The service must receive what every face always sends.
  auto requiredByAll = [&](const Parameter& p) {
    if (typed && p.typed != Need::required) return false;
    return std::all_of(p.dictionary.begin(), p.dictionary.end(), alwaysSent);
  };

  JsonMap op;
  op["operationId"] = operationId;
  op["tags"] = JsonList{JsonValue(path.substr(0, path.find('/')))};
  switch (endpoint.auth) {
    case Auth::none: op["security"] = JsonList{}; break;
    case Auth::optional: op["security"] = JsonList{JsonMap{}, JsonMap{{"bearer", JsonList{}}}}; break;
    case Auth::required: op["security"] = JsonList{JsonMap{{"bearer", JsonList{}}}}; break;
  }
  JsonList faces;
  if (dictionary) faces.emplace_back("dictionary");
  if (typed) faces.emplace_back("typed");
  op["x-faces"] = std::move(faces);
  if (dictionary) {
    op["x-dictionary-class"] = messages.front();
    // A further message of the path: the keys of the first that it never sends.
    JsonList alternatives;
    for (std::size_t i = 1; i < messages.size(); ++i) {
      std::vector<std::string> omits;
      for (const auto& p : params) {
        if (p.dictionary[0] != Need::none && p.dictionary[i] == Need::none) omits.push_back(p.key);
      }
      alternatives.emplace_back(JsonMap{{"class", messages[i]}, {"omits", stringList(omits)}});
    }
    if (!alternatives.empty()) op["x-dictionary-alternatives"] = std::move(alternatives);
  }
  if (typed) op["x-typed-record"] = line.request;
  if (dictionary && typed) {
    std::vector<std::string> onlyDictionary, onlyTyped;
    for (const auto& p : params) {
      if (p.typed == Need::none) onlyDictionary.push_back(p.key);
      if (std::all_of(p.dictionary.begin(), p.dictionary.end(), [](Need n) { return n == Need::none; })) {
        onlyTyped.push_back(p.key);
      }
    }
    if (!onlyDictionary.empty()) op["x-only-dictionary"] = stringList(onlyDictionary);
    if (!onlyTyped.empty()) op["x-only-typed"] = stringList(onlyTyped);
  }

  if (endpoint.verb == HttpVerb::get) {
    // Query parameters: text as it is, anything else as its JSON text.
    JsonList query;
    for (const auto& p : params) {
      JsonMap q{{"name", p.key}, {"in", "query"}, {"required", requiredByAll(p)}};
      if (p.json) {
        q["content"] = JsonMap{{"application/json", JsonMap{{"schema", p.schema}}}};
      } else {
        q["schema"] = p.schema;
      }
      JsonMap need;
      if (dictionary) need["dictionary"] = needName(p.dictionary.front());
      if (typed) need["typed"] = needName(p.typed);
      q["x-need"] = std::move(need);
      query.emplace_back(std::move(q));
    }
    op["parameters"] = std::move(query);
  } else {
    JsonMap content;
    if constexpr (hasFace<Request>) {
      // The request record as JSON (a request with a file present goes as multipart instead).
      content["application/json"] = JsonMap{{"schema", typedRecord<Request>(line.request)}};
    }
    if (dictionary) {
      JsonMap encoding;
      JsonMap schema = bodySchema(
          params,
          [](const Parameter& p) {
            return !p.file &&
                   std::any_of(p.dictionary.begin(), p.dictionary.end(), [](Need n) { return n != Need::none; });
          },
          [](const Parameter& p) { return std::all_of(p.dictionary.begin(), p.dictionary.end(), alwaysSent); },
          encoding, true);
      schema["x-dictionary-class"] = messages.front();
      JsonMap form{{"schema", std::move(schema)}};
      if (!encoding.empty()) form["encoding"] = std::move(encoding);
      content["application/x-www-form-urlencoded"] = std::move(form);
    }
    if (std::any_of(params.begin(), params.end(), [](const Parameter& p) { return p.file; })) {
      // Either face, when a file is given: the parameters as form fields, then the file as a part named after
      // its key, with the file name "file".
      JsonMap encoding;
      JsonMap schema = bodySchema(
          params, [](const Parameter&) { return true; }, [](const Parameter&) { return false; }, encoding, true);
      std::vector<std::string> required;
      for (const auto& p : params) {
        if (!p.file && requiredByAll(p)) required.push_back(p.key);
      }
      if (!required.empty()) schema["required"] = stringList(required);
      content["multipart/form-data"] = JsonMap{{"schema", std::move(schema)}, {"encoding", std::move(encoding)}};
    }
    op["requestBody"] = JsonMap{{"required", true}, {"content", std::move(content)}};
  }

  JsonValue reply;
  if constexpr (hasFace<Request>) {
    using Response = typename Request::Response;
    const std::string name = responseName(line.request);
    reply = typedRecord<Response>(name);
    if constexpr (hasFace<typename A::DictionaryMessage>) {
      addDictionaryFace(schemas_.find(name)->second, A::DictionaryMessage::qbResults(), line.message);
    }
  } else {
    reply = dictionaryObject(A::DictionaryMessage::qbResults(), line.message);
  }
  op["responses"] = JsonMap{{"200", JsonMap{{"description", "The reply."},
                                            {"content", JsonMap{{"application/json", JsonMap{{"schema", reply}}}}}}},
                            {"default", JsonMap{{"$ref", "#/components/responses/ServiceError"}}}};
  return op;
}

// The position of a domain's first record in AllRecords: the domains' record lists follow each other there.
template <class Records, class... Lists>
constexpr std::size_t recordOffset(TypeList<Lists...>) {
  std::size_t offset = 0;
  bool found = false;
  (
      [&] {
        if (found) return;
        if (std::is_same_v<Records, Lists>) {
          found = true;
        } else {
          offset += Lists::size;
        }
      }(),
      ...);
  return offset;
}

template <class Endpoints, class Records>
void Generator::addDomain() {
  forEachType(Endpoints{}, [&]<class A>() {
    if constexpr (!repeatsPath<A>(Endpoints{})) {
      JsonMap op = operation<A, Endpoints>();
      const std::string tag(op["tags"].as_array().front().as_string());
      if (!contains(seenTags_, tag)) {
        seenTags_.push_back(tag);
        tags_.emplace_back(JsonMap{{"name", tag}});
      }
      paths_["/" + std::string(A::endpoint.path)] = JsonMap{{std::string(A::endpoint.lowerVerb()), std::move(op)}};
    }
  });
  // Every record of the domain, also those no endpoint names (a content page's tag values, which travel as
  // maps whose "type" says which record they have the shape of).
  constexpr std::size_t offset = recordOffset<Records>(DomainRecordLists{});
  [&]<std::size_t... I>(std::index_sequence<I...>) { (record<offset + I>(), ...); }
  (std::make_index_sequence<Records::size>{});
}

}  // namespace qb::cli::openapi
