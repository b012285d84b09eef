#pragma once

#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/typed/UserGetUserResponse.hpp"

namespace qb {

// get: the logged-in user and the flags that accompany it.
struct UserGetUserRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(user::kGetUser, UserGetUserResponse)
  bool operator==(const UserGetUserRequest&) const = default;
};
static_assert(APIEncodableRequest<UserGetUserRequest>);

}  // namespace qb
