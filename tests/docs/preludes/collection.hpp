// client, signed in to the mock service (whose collection holds twelve items); show(item), which records
// what it is shown; timeToStop(), true after five items; savedCursor, empty. The fragment must stop after
// five items and keep the last one's id.
#pragma once

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/item/typed/SimpleItemModel.hpp>
#include <cstdint>
#include <iostream>
#include <optional>
#include <vector>

#include "PreludeSupport.hpp"

namespace {
struct Prelude {
  static inline std::vector<std::int64_t> shown;
  qb::host::Client client{qb::docs::serviceOptions()};
  std::optional<std::int64_t> savedCursor;

  Prelude() { qb::docs::signIn(client); }

  static void show(const qb::SimpleItemModel& item) {
    shown.push_back(item.itemId);
    std::cout << item.itemId << " " << item.name << "\n";
  }
  static bool timeToStop() { return shown.size() == 5; }

  void finish() const {
    qb::docs::expect(shown.size() == 5, "five items shown");
    qb::docs::expect(savedCursor == shown.back(), "the cursor is the last item shown");
  }
};
}  // namespace
