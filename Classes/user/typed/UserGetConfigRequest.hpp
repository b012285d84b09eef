#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigResponse.hpp>

namespace qb {

/// get_config: the client configuration for a language and country.
struct UserGetConfigRequest {
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("language_code", &UserGetConfigRequest::languageCode),
                                                    qb::key("country_code", &UserGetConfigRequest::countryCode));
  QB_TYPED_REQUEST(user::kGetConfig, UserGetConfigResponse)
  bool operator==(const UserGetConfigRequest&) const = default;
};
static_assert(APIEncodableRequest<UserGetConfigRequest>);

}  // namespace qb
