#pragma once

#include <cstdint>

#include <QBComponentAPI/frame/Enum.hpp>

namespace qb {

/// The user's gender.
enum class Gender : std::int64_t {
  male = 0,
  female = 1,
  unknown = 2,
};

}  // namespace qb

QB_ENUM(qb::Gender, QB_CASE(qb::Gender, male), QB_CASE(qb::Gender, female), QB_CASE(qb::Gender, unknown));
