#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/enums/LoginAction.hpp>
#include <QBComponentAPI/user/typed/DeviceInfoModel.hpp>
#include <QBComponentAPI/user/typed/LoginInfoModel.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateResponse.hpp>

namespace qb {

/// login_or_create: logs in, or creates the account first, as loginAction says.
struct UserLoginOrCreateRequest {
  LoginInfoModel loginInfo;
  DeviceInfoModel deviceInfo;
  LoginAction loginAction;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("login_info", &UserLoginOrCreateRequest::loginInfo),
                                                    qb::key("device_info", &UserLoginOrCreateRequest::deviceInfo),
                                                    qb::key("login_action", &UserLoginOrCreateRequest::loginAction));
  QB_TYPED_REQUEST(user::kLoginOrCreate, UserLoginOrCreateResponse)
  bool operator==(const UserLoginOrCreateRequest&) const = default;
};
static_assert(APIEncodableRequest<UserLoginOrCreateRequest>);

}  // namespace qb
