#include "cli/OpenApi.hpp"

#include <utility>

#include "cli/Domains.hpp"
#include "cli/OpenApiGenerator.hpp"

namespace qb::cli {
namespace openapi {

std::vector<RecordNames> recordNames() {
  std::vector<std::string_view> flat;
  for (std::size_t d = 0; d < std::size(kCatalogueClassNames); ++d) {
    std::size_t endpointClasses = 0;
    for (const EndpointNames& line : kCatalogueEndpointNames[d]) {
      endpointClasses += (line.message.empty() ? 0 : 1) + (line.request.empty() ? 0 : 1);
    }
    const auto records = kCatalogueClassNames[d].subspan(endpointClasses);
    flat.insert(flat.end(), records.begin(), records.end());
  }
  std::vector<RecordNames> out;
  std::size_t at = 0;
  forEachType(AllRecords{}, [&]<class R>() {
    RecordNames names;
    if constexpr (hasFace<typename R::Dictionary>) names.dictionary = flat.at(at++);
    if constexpr (hasFace<typename R::Typed>) names.typed = flat.at(at++);
    out.push_back(names);
  });
  if (at != flat.size()) throw std::logic_error("the catalogues name more records than they list");
  return out;
}

const EndpointNames& endpointNames(const Endpoint& endpoint) {
  for (const auto domain : kCatalogueEndpointNames) {
    for (const EndpointNames& line : domain) {
      if (line.endpoint == &endpoint) return line;
    }
  }
  throw std::logic_error("no catalogue line for " + std::string(endpoint.path));
}

std::string responseName(std::string_view request) {
  return std::string(request.substr(0, request.size() - std::string_view("Request").size())) + "Response";
}

JsonValue ref(std::string_view name) { return JsonMap{{"$ref", "#/components/schemas/" + std::string(name)}}; }

JsonValue typeSchema(std::string_view type) { return JsonMap{{"type", type}}; }

JsonValue integerSchema() { return JsonMap{{"type", "integer"}, {"format", "int64"}}; }

JsonValue binarySchema() { return JsonMap{{"type", "string"}, {"contentMediaType", "application/octet-stream"}}; }

JsonValue nullable(JsonValue schema) {
  JsonMap& s = schema.as_object();
  if (s.empty()) return schema;  // any value already
  JsonValue* type = s.if_contains("type");
  if (!type) return JsonMap{{"anyOf", JsonList{schema, typeSchema("null")}}};  // a $ref
  if (type->is_string()) *type = JsonList{*type, "null"};
  if (JsonValue* values = s.if_contains("enum")) values->as_array().emplace_back(nullptr);
  return schema;
}

JsonList stringList(const std::vector<std::string>& items) {
  JsonList out;
  for (const auto& item : items) out.emplace_back(item);
  return out;
}

bool contains(const std::vector<std::string>& list, std::string_view item) {
  return std::find(list.begin(), list.end(), item) != list.end();
}

const char* needName(Need need) {
  switch (need) {
    case Need::none: return "none";
    case Need::optional: return "optional";
    case Need::required: return "required";
    case Need::alwaysSent: return "always-sent";
  }
  return "none";
}

bool alwaysSent(Need need) { return need == Need::required || need == Need::alwaysSent; }

JsonValue dateSchema() {
  return JsonMap{{"type", "number"},
                 {"minimum", dateToNumber(kEarliestDate, DateStrategy::secondsSince1970)},
                 {"maximum", dateToNumber(kLatestDate, DateStrategy::secondsSince1970)},
                 {"description", "A date: seconds since 1970-01-01T00:00:00Z, fractions allowed (the host's decoder)."},
                 {"x-date-strategy", "secondsSince1970"}};
}

JsonMap bodySchema(const std::vector<Parameter>& params, bool (*include)(const Parameter&),
                   bool (*required)(const Parameter&), JsonMap& encoding, bool jsonEncoding) {
  JsonMap properties;
  std::vector<std::string> keys;
  for (const auto& p : params) {
    if (!include(p)) continue;
    properties[p.key] = p.schema;
    if (required(p)) keys.push_back(p.key);
    if (p.file) {
      encoding[p.key] = JsonMap{{"contentType", "application/octet-stream"}};
    } else if (p.json && jsonEncoding) {
      encoding[p.key] = JsonMap{{"contentType", "application/json"}};
    }
  }
  JsonMap schema{{"type", "object"}, {"properties", std::move(properties)}};
  if (!keys.empty()) schema["required"] = stringList(keys);
  return schema;
}

JsonMap Generator::document() {
  schemas_.emplace("ServiceError",
                   JsonMap{{"type", "object"},
                           {"properties", JsonMap{{"error", typeSchema("string")}, {"message", typeSchema("string")}}},
                           {"description", "What the service says about a failure: a code and a text."}});
  JsonMap schemas;
  for (auto& [name, schema] : schemas_) schemas[name] = std::move(schema);

  JsonMap doc;
  doc["openapi"] = "3.1.0";
  doc["info"] = JsonMap{
      {"title", "QBComponentAPI service"},
      {"version", QB_OPENAPI_VERSION},
      {"description",
       "Every endpoint the library calls, generated from its declarations. Records are named after the Typed face; "
       "x-dictionary-* and x-only-* extensions say where the Dictionary face differs. GET parameters travel in the "
       "query string, POST parameters as a form (Dictionary face) or JSON (Typed face), uploads as multipart; in a "
       "query string or form, text goes as it is and other values as their JSON text."}};
  doc["servers"] = JsonList{
      JsonMap{{"url", "https://{host}"}, {"variables", JsonMap{{"host", JsonMap{{"default", "api.example.com"}}}}}}};
  doc["tags"] = tags_;
  doc["paths"] = paths_;
  doc["components"] = JsonMap{
      {"schemas", std::move(schemas)},
      {"responses",
       JsonMap{{"ServiceError",
                JsonMap{{"description",
                         "Any status other than 2xx. When the body is a JSON object, its \"error\" and \"message\" "
                         "strings are what qb::host::HttpError::error() and message() return."},
                        {"content", JsonMap{{"application/json", JsonMap{{"schema", ref("ServiceError")}}}}}}}}},
      {"securitySchemes",
       JsonMap{{"bearer",
                JsonMap{{"type", "http"},
                        {"scheme", "bearer"},
                        {"description", "The session's access token, sent as Authorization: Bearer <token>."}}}}}};
  return doc;
}

}  // namespace openapi

JsonMap openApiDocument() {
  openapi::Generator generator;
  // The domains' lists side by side: the I-th endpoint list goes with the I-th record list.
  [&]<std::size_t... I>(std::index_sequence<I...>) {
    (addDomainToReference<typename openapi::At<I, DomainEndpointLists>::type,
                          typename openapi::At<I, DomainRecordLists>::type>(generator),
     ...);
  }
  (std::make_index_sequence<DomainEndpointLists::size>{});
  return generator.document();
}

std::string openApiText() { return *toPrettyJson(JsonValue(openApiDocument())) + "\n"; }

}  // namespace qb::cli
