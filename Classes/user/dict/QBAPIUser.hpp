#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The account: identity, profile, subscription flags and free-form properties.
class QBAPIUser final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIUser, "User")
  QB_VALUE(userId, UserId)
  QB_VALUE(uuid, Uuid)
  QB_VALUE(nickname, Nickname)
  QB_VALUE(avatarUrl, AvatarUrl)
  QB_INTEGER(gender, Gender)
  QB_VALUE(email, Email)
  QB_VALUE(createdAt, CreatedAt)
  QB_VALUE(guestUser, GuestUser)
  QB_VALUE(vip, Vip)
  QB_INTEGER(autoRenewStatus, AutoRenewStatus)
  QB_VALUE(expertConsultationCount, ExpertConsultationCount)
  QB_VALUE(appInitVersion, AppInitVersion)
  QB_MAP(properties, Properties)
  QB_FIELDS(QB_REQUIRED(userId, "user_id"), QB_REQUIRED(uuid, "uuid"), QB_OPTIONAL(nickname, "nickname"),
            QB_OPTIONAL(avatarUrl, "avatar_url"), QB_OPTIONAL(gender, "gender"), QB_OPTIONAL(email, "email"),
            QB_REQUIRED(createdAt, "created_at"), QB_REQUIRED(guestUser, "guest_user"), QB_REQUIRED(vip, "vip"),
            QB_OPTIONAL(autoRenewStatus, "auto_renew_status"),
            QB_REQUIRED(expertConsultationCount, "expert_consultation_count"),
            QB_OPTIONAL(appInitVersion, "app_init_version"), QB_OPTIONAL(properties, "properties"))
};

}  // namespace qb
