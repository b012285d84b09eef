#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/LoginInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserInitialiseResponse.hpp>

namespace qb {

/// initialise: starts a session, creating a guest account when there is none.
struct UserInitialiseRequest {
  std::optional<LoginInfoModel> loginInfo = std::nullopt;
  std::optional<DeviceInfoModel> deviceInfo = std::nullopt;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("login_info", &UserInitialiseRequest::loginInfo),
                                                    qb::key("device_info", &UserInitialiseRequest::deviceInfo),
                                                    qb::key("language_code", &UserInitialiseRequest::languageCode),
                                                    qb::key("country_code", &UserInitialiseRequest::countryCode));
  QB_TYPED_REQUEST(user::kInitialise, UserInitialiseResponse)
  bool operator==(const UserInitialiseRequest&) const = default;
};
static_assert(APIEncodableRequest<UserInitialiseRequest>);

}  // namespace qb
