#pragma once

#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/enums/LoginAction.hpp"
#include "user/typed/DeviceInfoModel.hpp"
#include "user/typed/LoginInfoModel.hpp"
#include "user/typed/UserLoginOrCreateForWebsiteResponse.hpp"

namespace qb {

// login_or_create_for_website: login_or_create for the website.
struct UserLoginOrCreateForWebsiteRequest {
  LoginInfoModel loginInfo;
  DeviceInfoModel deviceInfo;
  LoginAction loginAction;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("login_info", &UserLoginOrCreateForWebsiteRequest::loginInfo),
                     qb::key("device_info", &UserLoginOrCreateForWebsiteRequest::deviceInfo),
                     qb::key("login_action", &UserLoginOrCreateForWebsiteRequest::loginAction));
  QB_TYPED_REQUEST(user::kLoginOrCreateForWebsite, UserLoginOrCreateForWebsiteResponse)
  bool operator==(const UserLoginOrCreateForWebsiteRequest&) const = default;
};
static_assert(APIEncodableRequest<UserLoginOrCreateForWebsiteRequest>);

}  // namespace qb
