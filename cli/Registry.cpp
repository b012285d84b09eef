#include "cli/Registry.hpp"

#include <algorithm>
#include <limits>

#include "cli/Domains.hpp"

namespace qb::cli {

ParameterError::ParameterError(std::string key, const std::string& reason)
    : Error("parameter " + key + ": " + reason), key_(std::move(key)) {}

namespace entryParts {

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

}  // namespace entryParts

const std::vector<Entry>& registry() {
  static const std::vector<Entry> all = [] {
    std::vector<Entry> out;
    forEachType(DomainEndpointLists{}, [&]<class Endpoints>() {
      std::vector<Entry> part = domainEntries<Endpoints>();
      out.insert(out.end(), std::make_move_iterator(part.begin()), std::make_move_iterator(part.end()));
    });
    return out;
  }();
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
