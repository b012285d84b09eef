#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountResponse.hpp>

namespace qb {

/// delete_account: deletes the logged-in account.
struct UserDeleteAccountRequest {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_REQUEST(user::kDeleteAccount, UserDeleteAccountResponse)
  bool operator==(const UserDeleteAccountRequest&) const = default;
};
static_assert(APIEncodableRequest<UserDeleteAccountRequest>);

}  // namespace qb
