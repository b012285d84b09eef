#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIUser;
class QBAPIUserAdditionalData;

/// get: the logged-in user and the flags that accompany it.
class QBUserGetUserMessage final : public DictMessage<QBUserGetUserMessage> {
  QB_DICT_MESSAGE(QBUserGetUserMessage, "GetUser", user::kGetUser)
  static std::shared_ptr<QBUserGetUserMessage> initWithData() { return make<>(); }

  QB_PARAMS()

  QB_MODEL(QBAPIUser, user, User)
  QB_MODEL(QBAPIUserAdditionalData, userAdditionalData, UserAdditionalData)
  QB_RESULTS(QB_OPTIONAL(user, "user"), QB_OPTIONAL(userAdditionalData, "user_additional_data"))
};

}  // namespace qb
