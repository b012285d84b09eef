// client, signed in to the mock service, whose monstera-deliciosa page has tag values of every kind;
// show(record), which prints any record. The fragment must show at least one.
#pragma once

#include <QBComponentAPI/QBComponentAPI.hpp>
#include <QBComponentAPI/host/Client.hpp>
#include <algorithm>
#include <iostream>
#include <variant>

#include "PreludeSupport.hpp"

namespace {
struct Prelude {
  static inline int shown = 0;
  qb::host::Client client{qb::docs::serviceOptions()};

  Prelude() { qb::docs::signIn(client); }

  static void show(const auto& record) {
    ++shown;
    std::cout << qb::JSONEncoder().encode(record) << "\n";
  }

  void finish() const { qb::docs::expect(shown > 0, "a tag value shown"); }
};
}  // namespace
