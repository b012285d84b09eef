// What the mock service's handlers share: a call as it arrived, how a handler fails, and the handler
// tables of each domain. The routes themselves (paths, verbs, sessions, required parameters) come from
// the catalogues; a handler only says what an endpoint does.
#pragma once

#include <QBComponentAPI/frame/Json.hpp>
#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace qb::mock {

// A failure answered as {"error": code, "message": text} with an HTTP status.
struct Failure {
  int status;
  std::string code;
  std::string message;
};

struct Upload {
  std::string contentType;
  std::string data;
};

// One request's parameters, whatever the encoding, plus its caller.
struct Call {
  JsonMap params;
  std::map<std::string, Upload> files;
  std::optional<std::int64_t> userId;  // from a valid bearer token
  std::string token;
};

// A parameter as text: a text as it is, anything else as its JSON; empty when absent or null.
inline std::string text(const JsonMap& params, std::string_view key) {
  const JsonValue* v = params.if_contains(key);
  if (!v || v->is_null()) return {};
  return v->is_string() ? std::string(v->get_string()) : toJson(*v);
}

// Handlers by endpoint path. They run one at a time (the service holds its lock around each).
using Handler = std::function<JsonMap(Call&)>;
using HandlerTable = std::map<std::string_view, Handler>;

// A read-only route for tests and tools, GET /_mock/<pattern>: the pattern's captures in, the answer
// out (throw Failure for a 404). Runs under the service's lock, like the handlers.
using MockRoute = std::function<JsonMap(const std::vector<std::string>& captures)>;
using MockRoutes = std::map<std::string, MockRoute>;  // regular expression after "/_mock/" -> route

// What a domain adds to the service beside its handlers: read-only routes for tests and tools, and what
// to forget when an account is deleted (run under the service's lock, with the deleted user's id).
struct Extras {
  MockRoutes routes;
  std::vector<std::function<void(std::int64_t userId)>> onAccountDeleted;
};

// The content catalogue and share endpoints, over a seeded, deterministic catalogue.
HandlerTable contentHandlers();
// The item collection: one seeded collection per account, edited by the item endpoints.
HandlerTable itemHandlers(Extras& extras);
// Customer support: FAQ from the seeded catalogue, keyword auto replies, tickets kept per account.
HandlerTable supportHandlers(Extras& extras);

// The seeded content catalogue, for the domains that embed its records.
std::vector<std::string> contentUids();
// The full content name record of a seeded uid; Failure 404 for any other.
JsonMap contentName(std::string_view uid);
// A pair of light and dark page addresses for a page name.
JsonMap contentStaticUrl(std::string_view page);

}  // namespace qb::mock
