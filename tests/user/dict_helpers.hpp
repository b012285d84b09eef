// Helpers shared by the Dictionary-face account tests.
#pragma once

#include <gtest/gtest.h>

#include <QBComponentAPI/frame/Errors.hpp>
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

}  // namespace qb
