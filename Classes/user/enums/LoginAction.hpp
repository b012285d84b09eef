#pragma once

#include <cstdint>

#include <QBComponentAPI/frame/Enum.hpp>

namespace qb {

/// What a login-or-create call is to do.
enum class LoginAction : std::int64_t {
  loginOrCreateThenLogin = 0,
  onlyLogin = 1,
  createThenLogin = 2,
};

}  // namespace qb

QB_ENUM(qb::LoginAction, QB_CASE(qb::LoginAction, loginOrCreateThenLogin), QB_CASE(qb::LoginAction, onlyLogin),
        QB_CASE(qb::LoginAction, createThenLogin));
