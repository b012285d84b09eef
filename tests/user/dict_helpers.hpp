// Helpers shared by the Dictionary-face account tests.
#pragma once

#include <functional>
#include <string>

#include <QBComponentAPI/frame/Errors.hpp>

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

}  // namespace qb
