#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// A colour carried as a tag value.
enum class CmsColor : std::int64_t {
  orange = 0,
  yellow = 1,
  green = 2,
  red = 3,
  purple = 4,
  blue = 5,
  white = 6,
  pink = 7,
  bronze = 8,
  cream = 9,
  black = 10,
  grey = 11,
  silver = 12,
  variegated = 13,
  brown = 14,
  gold = 15,
};

}  // namespace qb

QB_ENUM(qb::CmsColor, QB_CASE(qb::CmsColor, orange), QB_CASE(qb::CmsColor, yellow), QB_CASE(qb::CmsColor, green),
        QB_CASE(qb::CmsColor, red), QB_CASE(qb::CmsColor, purple), QB_CASE(qb::CmsColor, blue),
        QB_CASE(qb::CmsColor, white), QB_CASE(qb::CmsColor, pink), QB_CASE(qb::CmsColor, bronze),
        QB_CASE(qb::CmsColor, cream), QB_CASE(qb::CmsColor, black), QB_CASE(qb::CmsColor, grey),
        QB_CASE(qb::CmsColor, silver), QB_CASE(qb::CmsColor, variegated), QB_CASE(qb::CmsColor, brown),
        QB_CASE(qb::CmsColor, gold));
