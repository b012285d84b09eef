#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// get_verify_code: asks for a verification code sent to an e-mail address.
class QBUserGetVerifyCodeMessage final : public DictMessage<QBUserGetVerifyCodeMessage> {
  QB_DICT_MESSAGE(QBUserGetVerifyCodeMessage, "GetVerifyCode", user::kGetVerifyCode)
  static std::shared_ptr<QBUserGetVerifyCodeMessage> initWithData(std::optional<JsonValue> email,
                                                                  std::int64_t languageCode) {
    return make<&Self::email_, &Self::languageCode_>(std::move(email), languageCode);
  }

  QB_VALUE(email, Email)
  QB_INTEGER(languageCode, LanguageCode)
  QB_PARAMS(QB_REQUIRED(email, "email"), QB_OPTIONAL(languageCode, "language_code"))
  QB_RESULTS()
};

}  // namespace qb
