#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>

namespace qb {

/// The reply of login_or_create_for_website.
struct UserLoginOrCreateForWebsiteResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;
  std::string accessToken;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("user", &UserLoginOrCreateForWebsiteResponse::user),
                     qb::key("user_additional_data", &UserLoginOrCreateForWebsiteResponse::userAdditionalData),
                     qb::key("access_token", &UserLoginOrCreateForWebsiteResponse::accessToken));
  QB_TYPED_RESPONSE(UserLoginOrCreateForWebsiteResponse)
  bool operator==(const UserLoginOrCreateForWebsiteResponse&) const = default;
};
static_assert(APIDecodableResponse<UserLoginOrCreateForWebsiteResponse>);

}  // namespace qb
