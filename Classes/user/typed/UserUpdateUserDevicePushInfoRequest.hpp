#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserDevicePushInfoResponse.hpp>

namespace qb {

/// update_user_device_push_info: the push key with the time zone, language and country.
struct UserUpdateUserDevicePushInfoRequest {
  std::optional<std::string> timeZone = std::nullopt;
  std::optional<std::string> pushKey = std::nullopt;
  std::optional<LanguageCode> languageCode = std::nullopt;
  std::optional<std::string> countryCode = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("time_zone", &UserUpdateUserDevicePushInfoRequest::timeZone),
                     qb::key("push_key", &UserUpdateUserDevicePushInfoRequest::pushKey),
                     qb::key("language_code", &UserUpdateUserDevicePushInfoRequest::languageCode),
                     qb::key("country_code", &UserUpdateUserDevicePushInfoRequest::countryCode));
  QB_TYPED_REQUEST(user::kUpdateUserDevicePushInfo, UserUpdateUserDevicePushInfoResponse)
  bool operator==(const UserUpdateUserDevicePushInfoRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateUserDevicePushInfoRequest>);

}  // namespace qb
