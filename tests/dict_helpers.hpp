// Helpers shared by the Dictionary-face tests of every domain.
#pragma once

#include <gtest/gtest.h>

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/frame/Errors.hpp>
#include <QBComponentAPI/frame/Json.hpp>
#include <QBComponentAPI/frame/QBMessageBase.hpp>
#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace qb {

// The reason of the ParameterCheckFailException that `f` raises, or "<none>" when it raises nothing.
inline std::string reasonOf(const std::function<void()>& f) {
  try {
    f();
  } catch (const ParameterCheckFailException& e) {
    return e.reason();
  }
  return "<none>";
}

// Changes one parameter of a message.
using Mutator = std::function<void(QBMessageBase&)>;

// Clears one parameter of a message through its setter.
template <class M, class T>
Mutator unset(void (M::*setter)(T)) {
  return [setter](QBMessageBase& message) { (dynamic_cast<M&>(message).*setter)(T{}); };
}

// Each required parameter, cleared alone, makes getParams raise its reason; with all of them cleared the
// first in check order is named. `full` builds the message with every parameter set.
inline void expectRequiredParametersRaise(const std::function<std::shared_ptr<QBMessageBase>()>& full,
                                          const std::vector<std::pair<Mutator, const char*>>& required) {
  const auto bare = full();
  for (const auto& [clear, reason] : required) {
    const auto message = full();
    clear(*message);
    EXPECT_EQ(reasonOf([&] { message->getParams(); }), reason);
    clear(*bare);
  }
  EXPECT_EQ(reasonOf([&] { bare->getParams(); }), required.empty() ? "<none>" : required.front().second);
}

// Builds a record of one Dictionary-face model class from a reply map.
using Reader = std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)>;

template <class M>
Reader reader() {
  return [](const JsonMap& map) { return M::initWithJsonObject(map); };
}

// Each required key of a complete reply, left out or set to null, makes `read` raise its reason; with
// every required key from the i-th on gone, the i-th is named, so the checks go in declared order.
inline void expectRequiredKeysRaise(const Reader& read, const std::string& full,
                                    const std::vector<std::pair<const char*, const char*>>& required) {
  for (const auto& [key, reason] : required) {
    JsonMap map = parseJsonMap(full);
    map.erase(key);
    EXPECT_EQ(reasonOf([&] { read(map); }), reason) << "without " << key;
    map[key] = nullptr;
    EXPECT_EQ(reasonOf([&] { read(map); }), reason) << "with null " << key;
  }
  for (std::size_t i = 0; i < required.size(); ++i) {
    JsonMap bare = parseJsonMap(full);
    for (std::size_t j = i; j < required.size(); ++j) bare.erase(required[j].first);
    EXPECT_EQ(reasonOf([&] { read(bare); }), required[i].second) << "without the keys from " << i;
  }
  EXPECT_EQ(reasonOf([&] { read(parseJsonMap(full)); }), "<none>");
}

// Whether a message's one result is present.
using OneResult = std::function<bool(QBMessageBase&)>;

template <class M, class Getter>
OneResult hasResult(Getter getter) {
  return [=](QBMessageBase& message) { return static_cast<bool>((dynamic_cast<M&>(message).*getter)()); };
}

// One message of a domain's table: what it sends and the reply key it reads.
struct DictMessageRow {
  const char* action;
  std::function<std::shared_ptr<QBMessageBase>()> full;  // every parameter set
  const char* params;                                    // compact JSON of full()->getParams()
  // Required parameters in check order, each with the reason its absence raises.
  std::vector<std::pair<Mutator, const char*>> required;
  std::string reply = "{}";         // holds the result key
  const char* resultKey = nullptr;  // null for a message that reads nothing
  OneResult result = nullptr;
};

// Each row builds its parameters, raises its reason for each missing required one, and reads its result
// key: present after a reply holding it, absent after one without it. A message that reads nothing
// accepts a reply of any content.
inline void expectMessageRows(const std::vector<DictMessageRow>& rows) {
  for (const auto& row : rows) {
    SCOPED_TRACE(row.action);
    EXPECT_EQ(toJson(row.full()->getParams()), row.params);
    expectRequiredParametersRaise(row.full, row.required);
    const JsonMap reply = parseJsonMap(row.reply);
    const auto message = row.full();
    EXPECT_EQ(&message->parseResponse(reply), message.get());
    if (!row.resultKey) {
      EXPECT_EQ(&message->parseResponse(parseJsonMap(R"({"item": null, "items": 3, "vip_info": []})")), message.get());
      continue;
    }
    EXPECT_TRUE(row.result(*message));
    JsonMap without = reply;
    without.erase(row.resultKey);
    const auto fresh = row.full();
    fresh->parseResponse(without);
    EXPECT_FALSE(row.result(*fresh)) << "without " << row.resultKey;
  }
}

}  // namespace qb
