#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/enums/Gender.hpp>

namespace qb {

/// Profile data an outside account provider supplies with a sign-in.
struct ThirdPartyUserInfoModel {
  std::optional<std::string> nickname = std::nullopt;
  std::optional<std::string> avatarUrl = std::nullopt;
  std::optional<Gender> gender = std::nullopt;
  std::optional<std::string> email = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("nickname", &ThirdPartyUserInfoModel::nickname),
                                                    qb::key("avatar_url", &ThirdPartyUserInfoModel::avatarUrl),
                                                    qb::key("gender", &ThirdPartyUserInfoModel::gender),
                                                    qb::key("email", &ThirdPartyUserInfoModel::email));
  bool operator==(const ThirdPartyUserInfoModel&) const = default;
};
static_assert(APIModel<ThirdPartyUserInfoModel>);

}  // namespace qb
