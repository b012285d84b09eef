// What the catalogue and documentation tests need to know about every endpoint and record, gathered
// once per domain by a small translation unit of its own (facts_<domain>.cpp, over FactsOf.hpp). The
// tests read these plain values instead of walking the face classes with templates, so that changing
// one record rebuilds only its domain's facts.
#pragma once

#include <QBComponentAPI/frame/Endpoint.hpp>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace qb::test {

/// How one face's message or request describes its call, as a default-constructed one reports it.
struct CallFacts {
  std::string api;
  std::vector<std::string> methods;
  bool forceHttps = false;
  bool binaryResponse = false;  ///< the Dictionary face's alone; false for a Typed request
  bool needAuth = false;
  bool mustAuth = false;
  bool noMimeBodies = false;
};

/// The keys of one Dictionary-face table or one Typed-face record, in declaration order, and which of
/// them the face insists on (see declarations.hpp): `required` fails decoding (or getParams) when
/// missing; `alwaysSent` is what a request always carries (the required keys, and for the Dictionary
/// face every integer too).
struct KeyFacts {
  std::vector<std::string> all, required, alwaysSent;
};

/// One face class: whether the line has that face, its class name and its model name (the Dictionary
/// face's kModelName, empty for a Typed class), its keys.
struct FaceFacts {
  bool present = false;
  std::string className;
  std::string modelName;
  KeyFacts keys;
};

/// One catalogue line.
struct EndpointFacts {
  const Endpoint* endpoint = nullptr;
  bool repeatsPath = false;  ///< an earlier line of the same domain has the same path
  FaceFacts message;         ///< keys: the message's parameters
  FaceFacts results;         ///< the same message's reply keys (className and modelName as `message`)
  FaceFacts request;
  FaceFacts response;  ///< the request's Response
  CallFacts messageCall, requestCall;
};

/// One record line.
struct RecordFacts {
  FaceFacts dictionary, typed;
};

struct DomainFacts {
  std::string_view name;
  std::vector<EndpointFacts> endpoints;
  std::vector<RecordFacts> records;
  std::span<const std::string_view> classNames;  ///< the catalogue's kClassNames
};

const DomainFacts& userFacts();
const DomainFacts& itemFacts();
const DomainFacts& cmsFacts();
const DomainFacts& shareFacts();
const DomainFacts& supportFacts();
const DomainFacts& vipFacts();

/// Every domain, in the order of the catalogues (user, item, cms, share, support, vip).
std::span<const DomainFacts* const> allFacts();

/// Every catalogue line, and every record line, of every domain in the same order.
const std::vector<const EndpointFacts*>& allEndpoints();
const std::vector<const RecordFacts*>& allRecords();

}  // namespace qb::test
