#include "cli/OpenApi.hpp"

#include <utility>

#include "cli/Domains.hpp"
#include "cli/OpenApiGenerator.hpp"

namespace qb::cli {
namespace openapi {

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
