#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIThirdPartyUserInfo;

/// The credentials the app sends to log in or create an account.
class QBAPILoginInfo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPILoginInfo, "LoginInfo")
  QB_INTEGER(loginType, LoginType)
  QB_VALUE(loginKey, LoginKey)
  QB_VALUE(loginPassword, LoginPassword)
  QB_MODEL(QBAPIThirdPartyUserInfo, thirdPartyUserInfo, ThirdPartyUserInfo)
  QB_FIELDS(QB_OPTIONAL(loginType, "login_type"), QB_REQUIRED(loginKey, "login_key"),
            QB_OPTIONAL(loginPassword, "login_password"), QB_OPTIONAL(thirdPartyUserInfo, "third_party_user_info"))
};

}  // namespace qb
