#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqResponse.hpp>

namespace qb {

/// get_faq: the account FAQ for a language and device type.
struct UserGetFaqRequest {
  LanguageCode languageCode;
  DeviceType deviceType;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("language_code", &UserGetFaqRequest::languageCode),
                                                    qb::key("device_type", &UserGetFaqRequest::deviceType));
  QB_TYPED_REQUEST(user::kGetFaq, UserGetFaqResponse)
  bool operator==(const UserGetFaqRequest&) const = default;
};
static_assert(APIEncodableRequest<UserGetFaqRequest>);

}  // namespace qb
