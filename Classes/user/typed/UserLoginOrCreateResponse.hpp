#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>

namespace qb {

/// The reply of login_or_create.
struct UserLoginOrCreateResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;
  std::string accessToken;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("user", &UserLoginOrCreateResponse::user),
                     qb::key("user_additional_data", &UserLoginOrCreateResponse::userAdditionalData),
                     qb::key("access_token", &UserLoginOrCreateResponse::accessToken));
  QB_TYPED_RESPONSE(UserLoginOrCreateResponse)
  bool operator==(const UserLoginOrCreateResponse&) const = default;
};
static_assert(APIDecodableResponse<UserLoginOrCreateResponse>);

}  // namespace qb
