#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserGetVerifyCodeResponse.hpp>

namespace qb {

/// get_verify_code: asks for a verification code sent to an e-mail address.
struct UserGetVerifyCodeRequest {
  std::string email;
  LanguageCode languageCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("email", &UserGetVerifyCodeRequest::email),
                                                    qb::key("language_code", &UserGetVerifyCodeRequest::languageCode));
  QB_TYPED_REQUEST(user::kGetVerifyCode, UserGetVerifyCodeResponse)
  bool operator==(const UserGetVerifyCodeRequest&) const = default;
};
static_assert(APIEncodableRequest<UserGetVerifyCodeRequest>);

}  // namespace qb
