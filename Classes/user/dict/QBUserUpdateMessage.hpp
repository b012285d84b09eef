#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update: changes the nickname, the avatar image and the gender.
class QBUserUpdateMessage final : public DictMessage<QBUserUpdateMessage> {
  QB_DICT_MESSAGE(QBUserUpdateMessage, "Update", user::kUpdate)
  static std::shared_ptr<QBUserUpdateMessage> initWithData(std::optional<JsonValue> nickname,
                                                           std::optional<std::vector<std::byte>> avatar,
                                                           std::int64_t gender) {
    return make<&Self::nickname_, &Self::avatar_, &Self::gender_>(std::move(nickname), std::move(avatar), gender);
  }

  QB_VALUE(nickname, Nickname)
  QB_DATA(avatar, Avatar)
  QB_INTEGER(gender, Gender)
  QB_PARAMS(QB_OPTIONAL(nickname, "nickname"), QB_OPTIONAL(gender, "gender"))

  QB_VALUE(avatarUrl, AvatarUrl)
  QB_RESULTS(QB_OPTIONAL(avatarUrl, "avatar_url"))

  /// The avatar, when set, as one multipart body; it never appears in the parameter map.
  std::vector<QBMimeBody> mimeBodies() const override;
};

}  // namespace qb
