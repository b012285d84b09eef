// Every endpoint the tool can call, by name ("user/get_config"), in each face it has.
#pragma once

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <functional>
#include <string>
#include <vector>

namespace qb::cli {

// Arguments as given on the command line: values that parse as JSON are JSON, anything else is text.
// A file argument ("avatar=@photo.png") is passed as its bytes in `files`.
struct Arguments {
  JsonMap values;
  std::map<std::string, std::vector<std::byte>> files;
};

// An argument the endpoint cannot take as given: a key that is none of its parameters, a value of the
// wrong kind, a file for a parameter that is not a file, a required parameter left out. `key()` is the
// key as it was typed; what() is "parameter <key>: <reason>". Nothing has been sent when it is thrown.
class ParameterError : public Error {
 public:
  ParameterError(std::string key, const std::string& reason);
  const std::string& key() const noexcept { return key_; }

 private:
  std::string key_;
};

// How a face treats a parameter.
enum class Need {
  none,        // the face has no such parameter
  optional,    // sent when given
  required,    // must be given
  alwaysSent,  // an integer of the Dictionary face: sent as 0 when not given
};

struct ParameterInfo {
  std::string key;
  std::string type;  // text, integer, number, boolean, date, record, list, map or file
  Need dictionary = Need::none;
  Need typed = Need::none;
};

// What an endpoint takes and answers, from its declarations.
struct Description {
  std::vector<ParameterInfo> parameters;         // Dictionary-face order first, then Typed-only keys
  std::vector<std::string> dictionaryReplyKeys;  // the message's results
  std::vector<std::string> typedReplyKeys;       // the response's coding keys
};

using Send = std::function<JsonValue(host::Client&, const Arguments&)>;
using Check = std::function<void(const Arguments&)>;

struct Entry {
  const Endpoint* endpoint;
  std::string name;
  // Send through the given face and return the decoded reply as JSON; empty when the face lacks it.
  // Both check the arguments first, as the check of the same face does.
  Send dictionary;
  Send typed;
  // Throw ParameterError for the first argument the face cannot take; empty when the face lacks it.
  Check checkDictionary;
  Check checkTyped;
  std::function<Description()> describe;
};

const std::vector<Entry>& registry();
const Entry* findEntry(std::string_view name);

// Every endpoint of the catalogues as a Markdown table (path, verb, session, each face's classes), one
// row per path, in catalogue order: the README's endpoint table.
std::string endpointTable();

}  // namespace qb::cli
