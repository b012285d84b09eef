// qbapi: calls any endpoint by name, lists and describes them, writes the wire reference, and runs a
// scripted session against the mock service.
#include <CLI/CLI.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <fstream>
#include <iomanip>
#include <iostream>
#include <iterator>
#include <sstream>

#include "cli/Demo.hpp"
#include "cli/KeptMock.hpp"
#include "cli/OpenApi.hpp"
#include "cli/Registry.hpp"
#include "mock/Service.hpp"

namespace {

// Exit codes (listed in the help text). An argument the endpoint cannot take is a usage error: it is
// found before anything is sent.
enum Exit { kOk = 0, kUsage = 2, kCheck = 3, kHttp = 4, kTransport = 5, kAuth = 6 };

constexpr const char* kExitCodes =
    "Exit codes: 0 success; 2 usage error, including a parameter the endpoint does not take, a value of the "
    "wrong kind, a missing required parameter or @file on a parameter that is not a file (nothing is sent); "
    "3 a reply that could not be decoded or a request that could not be encoded; 4 HTTP error status; "
    "5 no service could be reached (or a plain http URL without --allow-insecure-loopback); 6 the endpoint "
    "needs --token.";

std::string pretty(const qb::JsonValue& value) { return qb::toPrettyJson(value).value_or("<not JSON>"); }

qb::cli::Arguments parseArguments(const std::vector<std::string>& pairs) {
  qb::cli::Arguments args;
  for (const auto& pair : pairs) {
    const auto eq = pair.find('=');
    if (eq == std::string::npos || eq == 0) throw CLI::ValidationError("parameter", "expected key=value, got " + pair);
    const std::string key = pair.substr(0, eq);
    const std::string value = pair.substr(eq + 1);
    if (value.starts_with('@')) {
      std::ifstream file(value.substr(1), std::ios::binary);
      if (!file) throw CLI::ValidationError("parameter", "cannot read " + value.substr(1));
      std::vector<char> bytes((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
      auto& out = args.files[key];
      for (char c : bytes) out.push_back(static_cast<std::byte>(c));
      continue;
    }
    try {
      args.values[key] = qb::parseJson(value);
    } catch (const qb::DecodingError&) {
      args.values[key] = value;
    }
  }
  return args;
}

// The exit code and the line printed for a failure of the library, the host or the in-process mock.
std::pair<Exit, std::string> describeFailure(const qb::Error& error) {
  if (dynamic_cast<const qb::cli::ParameterError*>(&error)) return {kUsage, error.what()};
  if (const auto* e = dynamic_cast<const qb::ParameterCheckFailException*>(&error)) {
    return {kCheck, "parameter check failed: " + e->reason()};
  }
  if (dynamic_cast<const qb::DecodingError*>(&error)) {
    return {kCheck, std::string("the reply could not be decoded: ") + error.what()};
  }
  if (dynamic_cast<const qb::EncodingError*>(&error)) {
    return {kCheck, std::string("the request could not be encoded: ") + error.what()};
  }
  if (dynamic_cast<const qb::JsonTypeError*>(&error)) {
    return {kCheck, std::string("the reply has a value of the wrong kind: ") + error.what()};
  }
  if (dynamic_cast<const qb::host::InsecureUrlError*>(&error)) {
    return {kTransport,
            std::string(error.what()) + " (for a service on a loopback address, pass --allow-insecure-loopback)"};
  }
  if (dynamic_cast<const qb::host::AuthRequiredError*>(&error)) {
    return {kAuth, std::string(error.what()) + " (pass --token)"};
  }
  if (const auto* e = dynamic_cast<const qb::host::HttpError*>(&error)) {
    // The service's own words when it gave them, the start of the body otherwise.
    if (!e->message()) return {kHttp, error.what()};
    std::string line = "HTTP status " + std::to_string(e->status());
    if (e->error()) line += " (" + *e->error() + ")";
    return {kHttp, line + ": " + *e->message()};
  }
  // Transport failures, refused URLs, and an in-process mock service that could not start: no service
  // could be reached.
  return {kTransport, error.what()};
}

// Runs `body` against the given base URL; without one, against the mock kept by `qbapi mock start` (with
// its session) when `mayUseKept` and one is running, else against an in-process mock service. Maps every
// failure to its exit code.
// Plain http is refused unless `insecureLoopback` is set (and the host is a loopback address); the
// in-process mock service always implies it. `verbose` prints a line per HTTP attempt to stderr.
int withClient(const std::string& baseUrl, const std::optional<std::string>& token,
               const std::optional<std::string>& envelope, bool insecureLoopback, bool verbose,
               const std::function<void(qb::host::Client&)>& body, bool mayUseKept = true) {
  std::optional<qb::mock::Service> mock;
  std::optional<qb::cli::KeptMock> kept;
  qb::host::ClientOptions options{.baseUrl = baseUrl, .envelopeKey = envelope};
  options.allowInsecureLoopback = insecureLoopback;
  if (verbose) {
    // Method, path, attempt, outcome, size and time: what the observer is given, which never includes the
    // token, the query or a body.
    options.observer = [](const qb::host::Attempt& a) {
      std::ostringstream line;
      line << "qbapi: " << a.method << " " << a.path << " attempt " << a.number << ": ";
      if (a.failure.empty()) {
        line << "HTTP " << a.status;
      } else {
        line << "failed (" << a.failure << ")";
      }
      line << ", " << a.bytesReceived << " bytes, " << std::fixed << std::setprecision(1)
           << static_cast<double>(a.duration.count()) / 1000.0 << " ms\n";
      std::cerr << line.str();
    };
  }
  try {
    if (baseUrl.empty() && mayUseKept) kept = qb::cli::findKeptMock();
    if (kept) {
      options.baseUrl = kept->baseUrl;
      options.allowInsecureLoopback = true;
    } else if (baseUrl.empty()) {
      mock.emplace();
      mock->start(0);
      options.baseUrl = mock->baseUrl();
      options.allowInsecureLoopback = true;
    }
    qb::host::Client client(options);
    if (token) {
      client.setAccessToken(*token);
    } else if (kept) {
      client.setAccessToken(kept->token);
    }
    body(client);
    return kOk;
  } catch (const qb::Error& e) {
    const auto [code, line] = describeFailure(e);
    std::cerr << line << "\n";
    return code;
  }
}

void listEndpoints() {
  std::printf("%-36s %-5s %-11s %-9s %-8s\n", "endpoint", "verb", "faces", "needAuth", "mustAuth");
  for (const auto& e : qb::cli::registry()) {
    const char* faces = e.dictionary && e.typed ? "both" : e.dictionary ? "dictionary" : "typed";
    std::printf("%-36s %-5s %-11s %-9s %-8s\n", std::string(e.endpoint->path).c_str(),
                std::string(e.endpoint->upperVerb()).c_str(), faces, e.endpoint->needAuth() ? "yes" : "no",
                e.endpoint->mustAuth() ? "yes" : "no");
  }
}

const char* needName(qb::cli::Need need) {
  switch (need) {
    case qb::cli::Need::none: return "-";
    case qb::cli::Need::optional: return "optional";
    case qb::cli::Need::required: return "required";
    case qb::cli::Need::alwaysSent: return "always sent";
  }
  return "?";
}

void describeEndpoint(const qb::cli::Entry& entry) {
  const qb::cli::Description d = entry.describe();
  std::printf("%s  %s, session %s\n\n", std::string(entry.endpoint->path).c_str(),
              std::string(entry.endpoint->upperVerb()).c_str(),
              entry.endpoint->mustAuth()   ? "required"
              : entry.endpoint->needAuth() ? "used when given"
                                           : "not used");
  std::printf("%-28s %-8s %-12s %-12s\n", "parameter", "type", "dictionary", "typed");
  for (const auto& p : d.parameters) {
    std::printf("%-28s %-8s %-12s %-12s\n", p.key.c_str(), p.type.c_str(),
                entry.dictionary ? needName(p.dictionary) : "(no face)", entry.typed ? needName(p.typed) : "(no face)");
  }
  if (d.parameters.empty()) std::printf("(none)\n");
  auto keys = [](const char* face, const std::vector<std::string>& list) {
    std::printf("\nreply keys, %s face:", face);
    for (const auto& key : list) std::printf(" %s", key.c_str());
    std::printf("%s\n", list.empty() ? " (none)" : "");
  };
  if (entry.dictionary) keys("Dictionary", d.dictionaryReplyKeys);
  if (entry.typed) keys("Typed", d.typedReplyKeys);
}

}  // namespace

int main(int argc, char** argv) {
  CLI::App app{"qbapi: call the service's endpoints through either face of QBComponentAPI"};
  app.require_subcommand(1);
  app.footer(kExitCodes);
  std::string baseUrl;
  std::optional<std::string> token, envelope;
  bool insecureLoopback = false;
  bool verbose = false;
  auto addConnection = [&](CLI::App* cmd) {
    cmd->add_option("--base-url", baseUrl, "service URL; without it an in-process mock service answers");
    cmd->add_option("--token", token, "access token for endpoints that need a session");
    cmd->add_option("--envelope", envelope, "key under which replies carry their result");
    cmd->add_flag("--allow-insecure-loopback", insecureLoopback,
                  "accept a plain http:// --base-url on a loopback address (127.0.0.1, ::1, localhost), "
                  "e.g. a separately started qbapi-mock; implied for the in-process mock");
    cmd->add_flag("--verbose", verbose,
                  "print one line per HTTP attempt to stderr: method, path, attempt number, status or failure, "
                  "bytes received and time (never the token, the query or a body)");
  };

  bool markdown = false;
  std::int64_t pageSize = 50;
  std::optional<std::int64_t> after;
  CLI::App* collectionCmd =
      app.add_subcommand("collection", "print the signed-in user's whole collection, one item per line, page by page");
  collectionCmd->add_option("--page-size", pageSize, "items per call")->check(CLI::Range(1, 100000));
  collectionCmd->add_option("--after", after, "start after this item id (a saved cursor)");
  addConnection(collectionCmd);
  app.add_subcommand("endpoints", "list every endpoint with its verb, faces and flags")
      ->add_flag("--markdown", markdown, "as the README's table: path, verb, session and each face's classes");
  std::string openApiOutput;
  app.add_subcommand("openapi",
                     "write the OpenAPI 3.1 document of every endpoint, generated from the library's declarations")
      ->add_option("--output", openApiOutput, "file to write; standard output without it");
  CLI::App* describeCmd =
      app.add_subcommand("describe", "list an endpoint's parameters, their types and faces, and its reply keys");
  std::string describeName;
  describeCmd->add_option("endpoint", describeName, "e.g. user/get_config")->required();
  CLI::App* call = app.add_subcommand("call", "call one endpoint and print the decoded reply");
  std::string name, face = "dict";
  std::vector<std::string> params;
  call->add_option("endpoint", name, "e.g. user/get_config")->required();
  call->add_option("params", params,
                   "key=value pairs; values are JSON when they parse, text otherwise; key=@file uploads");
  call->add_option("--face", face, "dict or typed")->check(CLI::IsMember({"dict", "typed"}));
  addConnection(call);
  CLI::App* mockCmd = app.add_subcommand(
      "mock", "keep a mock service running between calls: calls without --base-url then use it and its session");
  mockCmd->require_subcommand(1);
  int mockPort = 0;
  mockCmd->add_subcommand("start", "start it in the background and print its URL")
      ->add_option("--port", mockPort, "0 picks a free one")
      ->check(CLI::Range(0, 65535));
  mockCmd->add_subcommand("stop", "stop it");
  mockCmd->add_subcommand("status", "print its URL and state file, or say that none is running");
  CLI::App* demoCmd =
      app.add_subcommand("demo", "a scripted session against the built-in mock service (never a real one)");
  addConnection(demoCmd);

  try {
    app.parse(argc, argv);
  } catch (const CLI::ParseError& e) {
    const int code = app.exit(e);
    return code == 0 ? kOk : kUsage;
  }

  if (app.got_subcommand("endpoints")) {
    if (markdown) {
      std::fputs(qb::cli::endpointTable().c_str(), stdout);
    } else {
      listEndpoints();
    }
    return kOk;
  }
  if (app.got_subcommand("openapi")) {
    const std::string text = qb::cli::openApiText();
    if (openApiOutput.empty()) {
      std::fputs(text.c_str(), stdout);
      return kOk;
    }
    std::ofstream file(openApiOutput, std::ios::binary | std::ios::trunc);
    file << text;
    file.close();
    if (!file) {
      std::cerr << "cannot write " << openApiOutput << "\n";
      return kUsage;
    }
    return kOk;
  }
  if (app.got_subcommand("describe")) {
    const qb::cli::Entry* entry = qb::cli::findEntry(describeName);
    if (!entry) {
      std::cerr << "unknown endpoint " << describeName << " (see qbapi endpoints)\n";
      return kUsage;
    }
    describeEndpoint(*entry);
    return kOk;
  }
  if (app.got_subcommand("mock")) {
    try {
      if (mockCmd->got_subcommand("start")) {
        std::cout << qb::cli::startKeptMock(mockPort).baseUrl << "\n";
      } else if (mockCmd->got_subcommand("stop")) {
        if (!qb::cli::stopKeptMock()) std::cout << "no mock service was running\n";
      } else if (const auto kept = qb::cli::findKeptMock()) {
        std::cout << kept->baseUrl << " (pid " << kept->pid << ", state in " << qb::cli::keptMockStatePath() << ")\n";
      } else {
        std::cout << "no mock service is running\n";
        return kTransport;
      }
      return kOk;
    } catch (const qb::Error& e) {
      std::cerr << e.what() << "\n";
      return kTransport;
    }
  }
  if (app.got_subcommand("collection")) {
    return withClient(baseUrl, token, envelope, insecureLoopback, verbose, [&](qb::host::Client& client) {
      if (baseUrl.empty() && !client.hasAccessToken()) qb::cli::openGuestSession(client);
      qb::cli::printCollection(client, pageSize, after);
    });
  }
  if (app.got_subcommand("demo")) {
    // The demo renames the account it signs into and then deletes it: pointed at a real service with a
    // real token it would destroy that account, so it only ever runs against the built-in mock.
    if (!baseUrl.empty() || token) {
      std::cerr << "demo runs only against the built-in mock service: it renames and then deletes the account "
                   "it uses, so --base-url and --token are refused (use qbapi call for a real service)\n";
      return kUsage;
    }
    return withClient(baseUrl, token, envelope, insecureLoopback, verbose, qb::cli::demo, /*mayUseKept=*/false);
  }

  const qb::cli::Entry* entry = qb::cli::findEntry(name);
  if (!entry) {
    std::cerr << "unknown endpoint " << name << " (see qbapi endpoints)\n";
    return kUsage;
  }
  const auto& send = face == "typed" ? entry->typed : entry->dictionary;
  if (!send) {
    std::cerr << name << " has no " << face << " face\n";
    return kUsage;
  }
  qb::cli::Arguments args;
  try {
    args = parseArguments(params);
    (face == "typed" ? entry->checkTyped : entry->checkDictionary)(args);
  } catch (const CLI::Error& e) {
    std::cerr << e.what() << "\n";
    return kUsage;
  } catch (const qb::cli::ParameterError& e) {
    std::cerr << e.what() << "\n";
    return kUsage;
  }
  return withClient(baseUrl, token, envelope, insecureLoopback, verbose, [&](qb::host::Client& client) {
    // Without a service of its own the tool opens a session on the mock first, so that calls needing one work.
    if (baseUrl.empty() && !client.hasAccessToken() && entry->endpoint->needAuth()) qb::cli::openGuestSession(client);
    std::cout << pretty(send(client, args)) << "\n";
  });
}
