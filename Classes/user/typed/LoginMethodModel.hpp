#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/enums/LoginType.hpp>

namespace qb {

/// One way in which an account can log in.
struct LoginMethodModel {
  LoginType type;
  std::string loginName;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &LoginMethodModel::type), qb::key("login_name", &LoginMethodModel::loginName));
  bool operator==(const LoginMethodModel&) const = default;
};
static_assert(APIModel<LoginMethodModel>);

}  // namespace qb
