#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserPropertiesResponse.hpp>

namespace qb {

/// update_user_properties: one text value under one text key.
struct UserUpdateUserPropertiesRequest {
  std::string key;
  std::string value;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("key", &UserUpdateUserPropertiesRequest::key),
                                                    qb::key("value", &UserUpdateUserPropertiesRequest::value));
  QB_TYPED_REQUEST(user::kUpdateUserProperties, UserUpdateUserPropertiesResponse)
  bool operator==(const UserUpdateUserPropertiesRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateUserPropertiesRequest>);

}  // namespace qb
