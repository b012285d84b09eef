// Readers of the two faces' declarations, for tests that compare the faces with each other or with the
// documentation: the keys a Dictionary-face table or a Typed-face record declares, and which of them each
// face insists on.
#pragma once

#include <cxxabi.h>

#include <QBComponentAPI/frame/Declarations.hpp>
#include <cstdlib>
#include <memory>
#include <string>
#include <string_view>
#include <typeinfo>
#include <vector>

namespace qb::test {

// The keys of a Dictionary-face table (&Class::qbFields, &Class::qbParams or &Class::qbResults) whose
// need passes `keep`, in order.
template <auto TableFn, class Keep>
std::vector<std::string> dictionaryKeysWhere(Keep keep) {
  std::vector<std::string> keys;
  forEachDictionaryKey(TableFn(), [&](std::string_view key, KeyNeed need, auto) {
    if (keep(need)) keys.emplace_back(key);
  });
  return keys;
}

template <auto TableFn>
std::vector<std::string> dictionaryKeys() {
  return dictionaryKeysWhere<TableFn>([](KeyNeed) { return true; });
}

// The keys declared QB_REQUIRED: a model raises ParameterCheckFailException when a reply lacks one, and
// getParams when the app left one out.
template <auto TableFn>
std::vector<std::string> dictionaryRequiredKeys() {
  return dictionaryKeysWhere<TableFn>([](KeyNeed need) { return need == KeyNeed::required; });
}

// The parameters a message's getParams always puts in its map: the required ones and every integer
// (which is 0 when the app set nothing).
template <auto TableFn>
std::vector<std::string> dictionaryAlwaysSentKeys() {
  return dictionaryKeysWhere<TableFn>([](KeyNeed need) { return need != KeyNeed::optional; });
}

// A record's or request's coding keys whose need passes `keep`; file members never count, since they
// travel as multipart bodies, not under a key.
template <class T, class Keep>
std::vector<std::string> typedKeysWhere(Keep keep) {
  std::vector<std::string> keys;
  forEachCodingKey<T>([&](std::string_view key, KeyNeed need, auto, bool isFile) {
    if (!isFile && keep(need)) keys.emplace_back(key);
  });
  return keys;
}

template <class T>
std::vector<std::string> typedKeys() {
  return typedKeysWhere<T>([](KeyNeed) { return true; });
}

// The coding keys of members that are not std::optional: always encoded, and a decoding error
// (keyNotFound) when a reply lacks one.
template <class T>
std::vector<std::string> typedRequiredKeys() {
  return typedKeysWhere<T>([](KeyNeed need) { return need == KeyNeed::required; });
}

// A class's name as its declaration spells it, without the namespace: "QBAPIVipInfo", "VipInfoModel".
template <class T>
std::string className() {
  int status = 0;
  const std::unique_ptr<char, void (*)(void*)> name(abi::__cxa_demangle(typeid(T).name(), nullptr, nullptr, &status),
                                                    std::free);
  std::string text = status == 0 && name ? name.get() : typeid(T).name();
  const auto colons = text.rfind("::");
  return colons == std::string::npos ? text : text.substr(colons + 2);
}

}  // namespace qb::test
