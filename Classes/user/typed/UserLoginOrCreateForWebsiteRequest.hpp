#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/enums/LoginAction.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/LoginInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateForWebsiteResponse.hpp>

namespace qb {

/// login_or_create_for_website: login_or_create for the website.
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
