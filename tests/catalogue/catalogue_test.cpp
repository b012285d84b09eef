// What every endpoint and record of every domain catalogue must satisfy: each face describes its call
// as its catalogue line says, both faces read and write the same keys (but for the deliberate
// differences listed below), and every class in the source tree is in a catalogue.
#include <gtest/gtest.h>

#include <QBComponentAPI/QBComponentAPI.hpp>
#include <algorithm>
#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "declarations.hpp"

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

template <class A>
void checkDescription() {
  const Endpoint& e = A::endpoint;
  SCOPED_TRACE(std::string(e.path));
  EXPECT_TRUE(e.path.starts_with("v3/"));
  const bool needAuth = e.auth != Auth::none;
  const bool mustAuth = e.auth == Auth::required;
  using Message = typename A::DictionaryMessage;
  using Request = typename A::TypedRequest;
  if constexpr (hasFace<Message>) {
    const auto message = std::make_shared<Message>();
    EXPECT_EQ(message->api(), e.path);
    EXPECT_EQ(message->methods(), std::vector<std::string>{e.verb == HttpVerb::get ? "get" : "post"});
    EXPECT_TRUE(message->forceHttps());
    EXPECT_FALSE(message->binaryResponse());
    EXPECT_EQ(message->needAuth(), needAuth) << authName(e.auth);
    EXPECT_EQ(message->mustAuth(), mustAuth) << authName(e.auth);
    EXPECT_TRUE(message->mimeBodies().empty());
  }
  if constexpr (hasFace<Request>) {
    const Request request{};
    EXPECT_EQ(request.api(), e.path);
    EXPECT_EQ(request.methods(), std::vector<std::string>{e.verb == HttpVerb::get ? "GET" : "POST"});
    EXPECT_TRUE(request.forceHttps());
    EXPECT_EQ(request.needAuth(), needAuth) << authName(e.auth);
    EXPECT_EQ(request.mustAuth(), mustAuth) << authName(e.auth);
    EXPECT_TRUE(request.mimeBodies().empty());
  }
}

TEST(Catalogue, EveryFaceDescribesItsCallAsItsLineSays) {
  forEachType(AllEndpoints{}, []<class A>() { checkDescription<A>(); });
}

// A path appears on one line, except that an endpoint's further Dictionary-face message has a line of
// its own: same verb and session, no Typed face, and no parameter the endpoint's first message lacks.
TEST(Catalogue, APathRepeatsOnlyForAFurtherDictionaryMessage) {
  std::set<std::string_view> paths;
  std::size_t repeats = 0;
  forEachType(AllEndpoints{}, [&]<class A>() {
    paths.insert(A::endpoint.path);
    if constexpr (repeatsPath<A>(AllEndpoints{})) {
      ++repeats;
      SCOPED_TRACE(std::string(A::endpoint.path));
      EXPECT_FALSE(hasFace<typename A::TypedRequest>);
      forEachType(AllEndpoints{}, [&]<class First>() {
        if constexpr (!repeatsPath<First>(AllEndpoints{}) && hasFace<typename First::DictionaryMessage> &&
                      hasFace<typename A::DictionaryMessage>) {
          if (First::endpoint.path != A::endpoint.path) return;
          EXPECT_EQ(First::endpoint.verb, A::endpoint.verb);
          EXPECT_EQ(First::endpoint.auth, A::endpoint.auth);
          std::vector<std::string_view> firstKeys;
          std::apply([&](const auto&... f) { (firstKeys.push_back(f.key), ...); },
                     First::DictionaryMessage::qbParams());
          std::apply(
              [&](const auto&... f) {
                const auto known = [&](std::string_view key) {
                  EXPECT_NE(std::find(firstKeys.begin(), firstKeys.end(), key), firstKeys.end()) << key;
                };
                (known(f.key), ...);
              },
              A::DictionaryMessage::qbParams());
        }
      });
    }
  });
  EXPECT_EQ(paths.size() + repeats, AllEndpoints::size);
}

// --- The two faces' keys ------------------------------------------------------------------------------

using test::dictionaryKeys;
using test::typedKeys;

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
  forEachType(AllRecords{}, [&]<class R>() {
    using D = typename R::Dictionary;
    using T = typename R::Typed;
    if constexpr (hasFace<D> && hasFace<T>) {
      compareKeys(std::string(D::kModelName), dictionaryKeys<&D::qbFields>(), typedKeys<T>(), used);
    }
  });
  forEachType(AllEndpoints{}, [&]<class A>() {
    using M = typename A::DictionaryMessage;
    using Q = typename A::TypedRequest;
    if constexpr (hasFace<M> && hasFace<Q>) {
      const std::string action(M::kModelName);
      compareKeys(action + " params", dictionaryKeys<&M::qbParams>(), typedKeys<Q>(), used);
      compareKeys(action + " results", dictionaryKeys<&M::qbResults>(), typedKeys<typename Q::Response>(), used);
    }
  });
  for (const auto& allowed : allowedDifferences()) {
    EXPECT_TRUE(used.contains(allowed.where)) << "an allowed difference names nothing: " << allowed.where;
  }
}

// --- The source tree ----------------------------------------------------------------------------------

std::set<std::string> cataloguedNames() {
  std::set<std::string> names;
  for (const auto domain : kCatalogueClassNames) {
    for (std::string_view name : domain) {
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
