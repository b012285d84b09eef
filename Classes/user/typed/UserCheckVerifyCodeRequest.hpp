#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserCheckVerifyCodeResponse.hpp>

namespace qb {

/// check_verify_code: checks a verification code; success is the answer.
struct UserCheckVerifyCodeRequest {
  std::string email;
  std::string verifyCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("email", &UserCheckVerifyCodeRequest::email),
                                                    qb::key("verify_code", &UserCheckVerifyCodeRequest::verifyCode));
  QB_TYPED_REQUEST(user::kCheckVerifyCode, UserCheckVerifyCodeResponse)
  bool operator==(const UserCheckVerifyCodeRequest&) const = default;
};
static_assert(APIEncodableRequest<UserCheckVerifyCodeRequest>);

}  // namespace qb
