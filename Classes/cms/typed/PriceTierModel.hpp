#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One way of obtaining a book.
struct PriceTierModel {
  std::int64_t type;
  std::int64_t vipOnly;
  std::int64_t free;
  std::string sku;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &PriceTierModel::type), qb::key("vip_only", &PriceTierModel::vipOnly),
                     qb::key("free", &PriceTierModel::free), qb::key("sku", &PriceTierModel::sku));
  bool operator==(const PriceTierModel&) const = default;
};
static_assert(APIModel<PriceTierModel>);

}  // namespace qb
