#pragma once

#include <cstdint>

#include <QBComponentAPI/frame/Enum.hpp>

namespace qb {

/// The subscription tier. Unknown values decode as gold, so that a new tier never breaks a reply.
enum class VipLevel : std::int64_t {
  none = 0,
  gold = 1,
  platinum = 2,
  pro = 3,
  plus = 4,
  family = 5,
};

}  // namespace qb

QB_ENUM_WITH_FALLBACK(qb::VipLevel, gold, QB_CASE(qb::VipLevel, none), QB_CASE(qb::VipLevel, gold),
                      QB_CASE(qb::VipLevel, platinum), QB_CASE(qb::VipLevel, pro), QB_CASE(qb::VipLevel, plus),
                      QB_CASE(qb::VipLevel, family));
