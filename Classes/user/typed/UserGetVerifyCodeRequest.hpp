#pragma once

#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/typed/UserGetVerifyCodeResponse.hpp"

namespace qb {

// get_verify_code: asks for a verification code sent to an e-mail address.
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
