// Every endpoint the tool can call, by name ("user/get_config"), in each face it has.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/host/Client.hpp>

namespace qb::cli {

// Arguments as given on the command line: values that parse as JSON are JSON, anything else is text.
// A file argument ("avatar=@photo.png") is passed as its bytes in `files`.
struct Arguments {
  JsonMap values;
  std::map<std::string, std::vector<std::byte>> files;
};

struct Entry {
  const Endpoint* endpoint;
  std::string name;
  // Send through the given face and return the decoded reply as JSON; empty when the face lacks it.
  std::function<JsonValue(host::Client&, const Arguments&)> dictionary;
  std::function<JsonValue(host::Client&, const Arguments&)> typed;
};

const std::vector<Entry>& registry();
const Entry* findEntry(std::string_view name);

}  // namespace qb::cli
