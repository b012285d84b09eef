// The tool's registry: which arguments each face refuses before sending, files reaching the request,
// and the description of an endpoint derived from its declarations. Loopback only.
#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>

#include "cli/Registry.hpp"
#include "mock/Service.hpp"

namespace qb {
namespace {

using cli::Arguments;
using cli::Need;
using cli::ParameterError;

std::vector<std::byte> bytes(std::string_view text) {
  std::vector<std::byte> out;
  for (char c : text) out.push_back(static_cast<std::byte>(c));
  return out;
}

Arguments arguments(std::string_view json, std::vector<std::string> files = {}) {
  Arguments args{.values = parseJsonMap(json), .files = {}};
  for (auto& key : files) args.files[key] = bytes("\x89PNG");
  return args;
}

const cli::Check& check(std::string_view endpoint, bool dictionary) {
  const cli::Entry* entry = cli::findEntry(endpoint);
  EXPECT_NE(entry, nullptr) << endpoint;
  return dictionary ? entry->checkDictionary : entry->checkTyped;
}

struct Refused {
  const char* endpoint;
  bool dictionary;
  const char* args;
  std::vector<std::string> files;
  const char* key;     // the key the error must name
  const char* reason;  // part of what() it must say
};

TEST(CliArguments, RefusedWithTheKeyTheUserTyped) {
  const Refused cases[] = {
      // Text for an integer would otherwise be read as 0; a fraction as its integer part.
      {"user/get_config",
       true,
       R"({"language_code": "english", "country_code": "US"})",
       {},
       "language_code",
       "takes an integer"},
      {"user/get_config",
       true,
       R"({"language_code": 1.5, "country_code": "US"})",
       {},
       "language_code",
       "takes an integer"},
      {"user/get_config",
       true,
       R"({"language_code": 1, "country_code": "US", "colour": "red"})",
       {},
       "colour",
       "not a parameter of v3/user/get_config"},
      {"user/get_config",
       false,
       R"({"language_code": 1, "country_code": "US", "colour": "red"})",
       {},
       "colour",
       "not a parameter of v3/user/get_config"},
      {"user/get_config", true, R"({"language_code": 1})", {}, "country_code", "required"},
      {"user/get_config", false, R"({"language_code": 1})", {}, "country_code", "required"},
      // A Typed-face argument that does not decode is the argument's fault, not the reply's.
      {"user/get_config", false, R"({"language_code": "english", "country_code": "US"})", {}, "language_code", ""},
      {"user/get_config", false, R"({"language_code": 1, "country_code": null})", {}, "country_code", "null"},
      {"user/initialise",
       false,
       R"({"language_code": 1, "country_code": "US", "login_info": {"login_key": "k"}})",
       {},
       "login_info",
       "login_info.login_type"},
      // A file only where the endpoint takes one, and the file parameter only as a file.
      {"user/get_config", true, R"({"language_code": 1})", {"country_code"}, "country_code", "not a file"},
      {"user/get_config", false, R"({"language_code": 1})", {"country_code"}, "country_code", "not a file"},
      {"user/update", true, R"({"avatar": "photo.png"})", {}, "avatar", "avatar=@path"},
      {"user/update", false, R"({"avatar": "photo.png"})", {}, "avatar", "avatar=@path"},
      {"user/update", true, "{}", {"nickname"}, "nickname", "not a file"},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(std::string(c.endpoint) + (c.dictionary ? " dictionary " : " typed ") + c.args);
    try {
      check(c.endpoint, c.dictionary)(arguments(c.args, c.files));
      ADD_FAILURE() << "accepted";
    } catch (const ParameterError& e) {
      EXPECT_EQ(e.key(), c.key);
      EXPECT_NE(std::string(e.what()).find(c.reason), std::string::npos) << e.what();
      EXPECT_TRUE(std::string(e.what()).starts_with("parameter " + std::string(c.key) + ": ")) << e.what();
    }
  }
}

TEST(CliArguments, ParametersOfTheFaceAreAccepted) {
  const struct {
    const char* endpoint;
    const char* args;
    std::vector<std::string> files;
  } cases[] = {
      {"user/get_config", R"({"language_code": 1, "country_code": "US"})", {}},
      {"user/initialise",
       R"({"language_code": 0, "country_code": "US", "login_info": {"login_type": 3, "login_key": "k"}})",
       {}},
      {"user/update", R"({"nickname": "Fern", "gender": 1})", {"avatar"}},
      {"user/get", "{}", {}},
  };
  for (const auto& c : cases) {
    for (bool dictionary : {true, false}) {
      SCOPED_TRACE(std::string(c.endpoint) + (dictionary ? " dictionary" : " typed"));
      EXPECT_NO_THROW(check(c.endpoint, dictionary)(arguments(c.args, c.files)));
    }
  }
}

// The send functions check first: a refused argument never reaches the service.
TEST(CliArguments, RefusedBeforeAnythingIsSent) {
  mock::Service service;
  service.start();
  host::Client client({.baseUrl = service.baseUrl(), .allowInsecureLoopback = true});
  const cli::Entry* entry = cli::findEntry("user/get_config");
  ASSERT_NE(entry, nullptr);
  const Arguments bad = arguments(R"({"language_code": "english", "country_code": "US"})");
  const std::uint64_t before = service.requestCount();
  EXPECT_THROW(entry->dictionary(client, bad), ParameterError);
  EXPECT_THROW(entry->typed(client, bad), ParameterError);
  EXPECT_EQ(service.requestCount(), before);
}

// An @file argument lands in the request's file member in each face and is stored as sent.
TEST(CliArguments, FileArgumentIsUploadedInEachFace) {
  mock::Service service;
  service.start();
  host::Client client({.baseUrl = service.baseUrl(), .allowInsecureLoopback = true});
  const cli::Entry* init = cli::findEntry("user/initialise");
  const cli::Entry* update = cli::findEntry("user/update");
  ASSERT_TRUE(init && update);
  const JsonValue session = init->dictionary(client, arguments(R"({"language_code": 0, "country_code": "US"})"));
  client.setAccessToken(std::string(session.at("access_token").as_string()));
  for (bool dictionary : {true, false}) {
    SCOPED_TRACE(dictionary ? "dictionary" : "typed");
    const std::string png = dictionary ? "\x89PNG dictionary" : "\x89PNG typed";
    Arguments args = arguments("{}");
    args.files["avatar"] = bytes(png);
    const JsonValue reply = (dictionary ? update->dictionary : update->typed)(client, args);
    const auto* url = reply.as_object().if_contains("avatar_url");
    ASSERT_TRUE(url && url->is_string()) << toJson(reply);
    const auto stored =
        host::makeCurlTransport()->send(host::HttpRequest{.method = "GET", .url = std::string(url->as_string())});
    EXPECT_EQ(stored.body, png);
  }
}

TEST(CliDescribe, ParametersAndReplyKeysFromTheDeclarations) {
  struct Expected {
    const char* key;
    const char* type;
    Need dictionary;
    Need typed;
  };
  const struct {
    const char* endpoint;
    std::vector<Expected> parameters;
    std::vector<std::string> dictionaryReply, typedReply;
  } cases[] = {
      {"user/get_config",
       {{"language_code", "integer", Need::alwaysSent, Need::required},
        {"country_code", "text", Need::required, Need::required}},
       {"config", "other_configs"},
       {"config", "other_configs"}},
      {"user/initialise",
       {{"login_info", "record", Need::optional, Need::optional},
        {"device_info", "record", Need::optional, Need::optional},
        {"language_code", "integer", Need::alwaysSent, Need::required},
        {"country_code", "text", Need::required, Need::required}},
       {},
       {}},
      {"user/update",
       {{"nickname", "text", Need::optional, Need::optional},
        {"gender", "integer", Need::alwaysSent, Need::optional},
        {"avatar", "file", Need::optional, Need::optional}},
       {"avatar_url"},
       {"avatar_url"}},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.endpoint);
    const cli::Entry* entry = cli::findEntry(c.endpoint);
    ASSERT_NE(entry, nullptr);
    const cli::Description d = entry->describe();
    ASSERT_EQ(d.parameters.size(), c.parameters.size());
    for (std::size_t i = 0; i < d.parameters.size(); ++i) {
      SCOPED_TRACE(c.parameters[i].key);
      EXPECT_EQ(d.parameters[i].key, c.parameters[i].key);
      EXPECT_EQ(d.parameters[i].type, c.parameters[i].type);
      EXPECT_EQ(d.parameters[i].dictionary, c.parameters[i].dictionary);
      EXPECT_EQ(d.parameters[i].typed, c.parameters[i].typed);
    }
    if (!c.dictionaryReply.empty()) {
      EXPECT_EQ(d.dictionaryReplyKeys, c.dictionaryReply);
    }
    if (!c.typedReply.empty()) {
      EXPECT_EQ(d.typedReplyKeys, c.typedReply);
    }
  }
}

// What describe lists is what the checks take: every listed parameter of a face is known to that face's
// check, and a key it does not list is refused as unknown.
TEST(CliDescribe, AgreesWithTheChecksForEveryEndpoint) {
  for (const auto& entry : cli::registry()) {
    const cli::Description d = entry.describe();
    for (bool dictionary : {true, false}) {
      const cli::Check& check = dictionary ? entry.checkDictionary : entry.checkTyped;
      if (!check) continue;
      SCOPED_TRACE(entry.name + (dictionary ? " dictionary" : " typed"));
      for (const auto& p : d.parameters) {
        if ((dictionary ? p.dictionary : p.typed) == Need::none) continue;
        Arguments args;
        if (p.type == "file") {
          args.files[p.key] = bytes("x");
        } else {
          args.values[p.key] = nullptr;
        }
        try {
          check(args);
        } catch (const ParameterError& e) {
          EXPECT_EQ(std::string(e.what()).find("not a parameter"), std::string::npos) << e.what();
          EXPECT_EQ(std::string(e.what()).find("not a file"), std::string::npos) << e.what();
        }
      }
      try {
        check(arguments(R"({"no_such_parameter": 1})"));
        ADD_FAILURE() << "an unknown key was accepted";
      } catch (const ParameterError& e) {
        EXPECT_EQ(e.key(), "no_such_parameter");
      }
    }
  }
}

}  // namespace
}  // namespace qb

namespace qb {
namespace {

// The README's endpoint table is the one the catalogues give; after adding an endpoint, paste the output
// of `qbapi endpoints --markdown` between the markers.
TEST(CliEndpoints, ReadmeTableMatchesTheCatalogues) {
  std::ifstream file(std::string(QB_SOURCE_DIR) + "/README.md");
  const std::string readme((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
  const std::string begin = "<!-- endpoints:begin -->\n", end = "<!-- endpoints:end -->";
  const auto from = readme.find(begin), to = readme.find(end);
  ASSERT_NE(from, std::string::npos);
  ASSERT_NE(to, std::string::npos);
  EXPECT_EQ(readme.substr(from + begin.size(), to - from - begin.size()), cli::endpointTable());
  // One row per endpoint, one registry entry per path.
  const auto rows = std::count(readme.begin() + static_cast<std::ptrdiff_t>(from),
                               readme.begin() + static_cast<std::ptrdiff_t>(to), '\n') -
                    3;
  EXPECT_EQ(static_cast<std::size_t>(rows), cli::registry().size());
}

}  // namespace
}  // namespace qb
