#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/enums/LoginType.hpp>
#include <QBComponentAPI/user/typed/ThirdPartyUserInfoModel.hpp>

namespace qb {

/// The credentials the app sends to log in or create an account.
struct LoginInfoModel {
  LoginType loginType;
  std::string loginKey;
  std::optional<std::string> loginPassword = std::nullopt;
  std::optional<ThirdPartyUserInfoModel> thirdPartyUserInfo = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("login_type", &LoginInfoModel::loginType), qb::key("login_key", &LoginInfoModel::loginKey),
                     qb::key("login_password", &LoginInfoModel::loginPassword),
                     qb::key("third_party_user_info", &LoginInfoModel::thirdPartyUserInfo));
  bool operator==(const LoginInfoModel&) const = default;
};
static_assert(APIModel<LoginInfoModel>);

}  // namespace qb
