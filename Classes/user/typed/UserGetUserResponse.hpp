#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>

namespace qb {

/// The reply of get.
struct UserGetUserResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("user", &UserGetUserResponse::user),
                     qb::key("user_additional_data", &UserGetUserResponse::userAdditionalData));
  QB_TYPED_RESPONSE(UserGetUserResponse)
  bool operator==(const UserGetUserResponse&) const = default;
};
static_assert(APIDecodableResponse<UserGetUserResponse>);

}  // namespace qb
