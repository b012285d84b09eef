#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// Profile data an outside account provider supplies with a sign-in.
class QBAPIThirdPartyUserInfo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIThirdPartyUserInfo, "ThirdPartyUserInfo")
  QB_VALUE(nickname, Nickname)
  QB_VALUE(avatarUrl, AvatarUrl)
  QB_INTEGER(gender, Gender)
  QB_VALUE(email, Email)
  QB_FIELDS(QB_OPTIONAL(nickname, "nickname"), QB_OPTIONAL(avatarUrl, "avatar_url"), QB_OPTIONAL(gender, "gender"),
            QB_OPTIONAL(email, "email"))
};

}  // namespace qb
