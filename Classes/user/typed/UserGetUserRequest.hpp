#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserGetUserResponse.hpp>

namespace qb {

/// get: the logged-in user and the flags that accompany it.
struct UserGetUserRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(user::kGetUser, UserGetUserResponse)
  bool operator==(const UserGetUserRequest&) const = default;
};
static_assert(APIEncodableRequest<UserGetUserRequest>);

}  // namespace qb
