// What every endpoint and record of every domain catalogue must satisfy: each face describes its call
// as its catalogue line says, both faces read and write the same keys (but for the deliberate
// differences listed below), and every class in the source tree is in a catalogue.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "catalogue/Facts.hpp"

namespace qb {
namespace {

std::string authName(Auth auth) {
  switch (auth) {
    case Auth::none: return "none";
    case Auth::optional: return "optional";
    case Auth::required: return "required";
  }
  return "?";
}

// Each face's call description against its line: the Dictionary face spells the verb in lower case,
// the Typed face in upper case, and neither adds MIME bodies to a message nobody filled.
void checkDescription(const test::EndpointFacts& line) {
  const Endpoint& e = *line.endpoint;
  SCOPED_TRACE(std::string(e.path));
  EXPECT_TRUE(e.path.starts_with("v3/"));
  const bool needAuth = e.auth != Auth::none;
  const bool mustAuth = e.auth == Auth::required;
  if (line.message.present) {
    const test::CallFacts& message = line.messageCall;
    EXPECT_EQ(message.api, e.path);
    EXPECT_EQ(message.methods, std::vector<std::string>{e.verb == HttpVerb::get ? "get" : "post"});
    EXPECT_TRUE(message.forceHttps);
    EXPECT_FALSE(message.binaryResponse);
    EXPECT_EQ(message.needAuth, needAuth) << authName(e.auth);
    EXPECT_EQ(message.mustAuth, mustAuth) << authName(e.auth);
    EXPECT_TRUE(message.noMimeBodies);
  }
  if (line.request.present) {
    const test::CallFacts& request = line.requestCall;
    EXPECT_EQ(request.api, e.path);
    EXPECT_EQ(request.methods, std::vector<std::string>{e.verb == HttpVerb::get ? "GET" : "POST"});
    EXPECT_TRUE(request.forceHttps);
    EXPECT_EQ(request.needAuth, needAuth) << authName(e.auth);
    EXPECT_EQ(request.mustAuth, mustAuth) << authName(e.auth);
    EXPECT_TRUE(request.noMimeBodies);
  }
}

TEST(Catalogue, EveryFaceDescribesItsCallAsItsLineSays) {
  ASSERT_FALSE(test::allEndpoints().empty());
  for (const auto* line : test::allEndpoints()) checkDescription(*line);
}

// A path appears on one line, except that an endpoint's further Dictionary-face message has a line of
// its own: same verb and session, no Typed face, and no parameter the endpoint's first message lacks.
// Each domain marks the lines that repeat one of its own paths; a path repeated across domains is
// unmarked and makes the count below fail.
TEST(Catalogue, APathRepeatsOnlyForAFurtherDictionaryMessage) {
  std::set<std::string_view> paths;
  std::size_t repeats = 0;
  for (const auto* a : test::allEndpoints()) {
    paths.insert(a->endpoint->path);
    if (!a->repeatsPath) continue;
    ++repeats;
    SCOPED_TRACE(std::string(a->endpoint->path));
    EXPECT_FALSE(a->request.present);
    for (const auto* first : test::allEndpoints()) {
      if (first->repeatsPath || !first->message.present || !a->message.present) continue;
      if (first->endpoint->path != a->endpoint->path) continue;
      EXPECT_EQ(first->endpoint->verb, a->endpoint->verb);
      EXPECT_EQ(first->endpoint->auth, a->endpoint->auth);
      const auto& firstKeys = first->message.keys.all;
      for (const auto& key : a->message.keys.all) {
        EXPECT_NE(std::find(firstKeys.begin(), firstKeys.end(), key), firstKeys.end()) << key;
      }
    }
  }
  EXPECT_EQ(paths.size() + repeats, test::allEndpoints().size());
}

// --- The two faces' keys ------------------------------------------------------------------------------

// The differences between the faces that are part of the design: where, and which keys one face has
// that the other lacks. Anything else is drift between the faces.
struct AllowedDifference {
  std::string where;  // a Dictionary-face class, with "params" or "results" for a message
  std::vector<std::string> onlyDictionary;
  std::vector<std::string> onlyTyped;
};

const std::vector<AllowedDifference>& allowedDifferences() {
  static const std::vector<AllowedDifference> table{
      // The subscription summary's refund flag is read by the Dictionary face only.
      {"VipInfo", {"is_refund_in_history"}, {}},
      // An image's illustration is the Dictionary face's alone; a simple name's tags the Typed face's.
      {"CmsImage", {"illustration"}, {}},
      {"SimpleCmsName", {}, {"cms_tags"}},
      // A detailed item's disease id is the Typed face's alone (the simple item has it in both).
      {"ItemDetail", {}, {"disease_uid"}},
  };
  return table;
}

struct Difference {
  std::vector<std::string> onlyDictionary, onlyTyped;
  bool operator==(const Difference&) const = default;
};

Difference differenceOf(std::vector<std::string> dictionary, std::vector<std::string> typed) {
  Difference d;
  std::sort(dictionary.begin(), dictionary.end());
  std::sort(typed.begin(), typed.end());
  std::set_difference(dictionary.begin(), dictionary.end(), typed.begin(), typed.end(),
                      std::back_inserter(d.onlyDictionary));
  std::set_difference(typed.begin(), typed.end(), dictionary.begin(), dictionary.end(),
                      std::back_inserter(d.onlyTyped));
  return d;
}

std::string join(const std::vector<std::string>& keys) {
  std::string out;
  for (const auto& key : keys) out += (out.empty() ? "" : ", ") + key;
  return "[" + out + "]";
}

// Compares one pair of key lists: equal as sets, unless the difference is the allowed one; the keys
// both faces share come in the same order.
void compareKeys(const std::string& where, const std::vector<std::string>& dictionary,
                 const std::vector<std::string>& typed, std::set<std::string>& used) {
  SCOPED_TRACE(where);
  Difference expected;
  for (const auto& allowed : allowedDifferences()) {
    if (allowed.where == where) {
      expected = {allowed.onlyDictionary, allowed.onlyTyped};
      std::sort(expected.onlyDictionary.begin(), expected.onlyDictionary.end());
      std::sort(expected.onlyTyped.begin(), expected.onlyTyped.end());
      used.insert(where);
    }
  }
  const Difference actual = differenceOf(dictionary, typed);
  EXPECT_EQ(actual, expected) << "only in the Dictionary face: " << join(actual.onlyDictionary)
                              << "; only in the Typed face: " << join(actual.onlyTyped);
  std::vector<std::string> sharedD, sharedT;
  for (const auto& k : dictionary)
    if (std::find(typed.begin(), typed.end(), k) != typed.end()) sharedD.push_back(k);
  for (const auto& k : typed)
    if (std::find(dictionary.begin(), dictionary.end(), k) != dictionary.end()) sharedT.push_back(k);
  EXPECT_EQ(sharedD, sharedT) << "the faces declare their shared keys in another order";
}

TEST(Catalogue, BothFacesOfEveryRecordAndEndpointUseTheSameKeys) {
  std::set<std::string> used;
  for (const auto* record : test::allRecords()) {
    if (record->dictionary.present && record->typed.present) {
      compareKeys(record->dictionary.modelName, record->dictionary.keys.all, record->typed.keys.all, used);
    }
  }
  for (const auto* line : test::allEndpoints()) {
    if (line->message.present && line->request.present) {
      const std::string& action = line->message.modelName;
      compareKeys(action + " params", line->message.keys.all, line->request.keys.all, used);
      compareKeys(action + " results", line->results.keys.all, line->response.keys.all, used);
    }
  }
  for (const auto& allowed : allowedDifferences()) {
    EXPECT_TRUE(used.contains(allowed.where)) << "an allowed difference names nothing: " << allowed.where;
  }
}

// --- The source tree ----------------------------------------------------------------------------------

std::set<std::string> cataloguedNames() {
  std::set<std::string> names;
  for (const auto* domain : test::allFacts()) {
    for (std::string_view name : domain->classNames) {
      names.emplace(name);
      // A request's response lives in its own file beside it.
      if (name.ends_with("Request")) names.insert(std::string(name.substr(0, name.size() - 7)) + "Response");
    }
  }
  return names;
}

TEST(Catalogue, EveryClassInTheSourceTreeIsInACatalogue) {
  namespace fs = std::filesystem;
  const auto names = cataloguedNames();
  std::size_t seen = 0;
  for (const auto& domain : fs::directory_iterator(fs::path(QB_SOURCE_DIR) / "Classes")) {
    for (const char* face : {"dict", "typed"}) {
      const fs::path folder = domain.path() / face;
      if (!fs::is_directory(folder)) continue;
      for (const auto& file : fs::directory_iterator(folder)) {
        if (file.path().extension() != ".hpp") continue;
        const std::string name = file.path().stem().string();
        // The umbrella header of a face folder includes the others.
        if (name.ends_with("Dict") || name.ends_with("Typed")) continue;
        ++seen;
        EXPECT_TRUE(names.contains(name)) << file.path() << " is not in its domain's catalogue";
      }
    }
  }
  EXPECT_GT(seen, 0u);
}

}  // namespace
}  // namespace qb
