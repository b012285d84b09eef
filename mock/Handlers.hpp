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

// The content catalogue and share endpoints, over a seeded, deterministic catalogue.
HandlerTable contentHandlers();

}  // namespace qb::mock
