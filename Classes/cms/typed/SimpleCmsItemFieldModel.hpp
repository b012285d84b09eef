#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One extra key and value shown with a simple item.
struct SimpleCmsItemFieldModel {
  std::string key;
  std::string value;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("key", &SimpleCmsItemFieldModel::key), qb::key("value", &SimpleCmsItemFieldModel::value));
  bool operator==(const SimpleCmsItemFieldModel&) const = default;
};
static_assert(APIModel<SimpleCmsItemFieldModel>);

}  // namespace qb
