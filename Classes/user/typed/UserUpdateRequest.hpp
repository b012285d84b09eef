#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/enums/Gender.hpp>
#include <QBComponentAPI/user/typed/UserUpdateResponse.hpp>

namespace qb {

/// update: changes the nickname, the avatar image and the gender. The avatar travels as a multipart body.
struct UserUpdateRequest {
  std::optional<std::string> nickname = std::nullopt;
  std::optional<Gender> gender = std::nullopt;
  std::optional<APIFile> avatar = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("nickname", &UserUpdateRequest::nickname), qb::key("gender", &UserUpdateRequest::gender),
                     qb::file("avatar", &UserUpdateRequest::avatar));
  QB_TYPED_REQUEST(user::kUpdate, UserUpdateResponse)
  bool operator==(const UserUpdateRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateRequest>);

}  // namespace qb
