#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// check_verify_code: checks a verification code; success is the answer.
class QBUserCheckVerifyCodeMessage final : public DictMessage<QBUserCheckVerifyCodeMessage> {
  QB_DICT_MESSAGE(QBUserCheckVerifyCodeMessage, "CheckVerifyCode", user::kCheckVerifyCode)
  static std::shared_ptr<QBUserCheckVerifyCodeMessage> initWithData(std::optional<JsonValue> email,
                                                                    std::optional<JsonValue> verifyCode) {
    return make<&Self::email_, &Self::verifyCode_>(std::move(email), std::move(verifyCode));
  }

  QB_VALUE(email, Email)
  QB_VALUE(verifyCode, VerifyCode)
  QB_PARAMS(QB_REQUIRED(email, "email"), QB_REQUIRED(verifyCode, "verify_code"))
  QB_RESULTS()
};

}  // namespace qb
