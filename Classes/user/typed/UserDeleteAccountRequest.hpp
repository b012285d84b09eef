#pragma once

#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/typed/UserDeleteAccountResponse.hpp"

namespace qb {

// delete_account: deletes the logged-in account.
struct UserDeleteAccountRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(user::kDeleteAccount, UserDeleteAccountResponse)
  bool operator==(const UserDeleteAccountRequest&) const = default;
};
static_assert(APIEncodableRequest<UserDeleteAccountRequest>);

}  // namespace qb
