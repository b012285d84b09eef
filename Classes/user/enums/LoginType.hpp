#pragma once

#include <cstdint>

#include <QBComponentAPI/frame/Enum.hpp>

namespace qb {

/// How an account logs in. 0, 4 and 5 are no case.
enum class LoginType : std::int64_t {
  guest = 1,
  phone = 2,
  email = 3,
  restore = 6,
  google = 7,
  apple = 8,
};

}  // namespace qb

QB_ENUM(qb::LoginType, QB_CASE(qb::LoginType, guest), QB_CASE(qb::LoginType, phone), QB_CASE(qb::LoginType, email),
        QB_CASE(qb::LoginType, restore), QB_CASE(qb::LoginType, google), QB_CASE(qb::LoginType, apple));
