#pragma once

#include <map>

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/ClientConfigModel.hpp>
#include <QBComponentAPI/user/typed/UserAdditionalDataModel.hpp>
#include <QBComponentAPI/user/typed/UserModel.hpp>

namespace qb {

/// The reply of initialise.
struct UserInitialiseResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;
  std::optional<std::string> accessToken = std::nullopt;
  ClientConfigModel config;
  std::map<std::string, AnyCodable> otherConfigs;
  Date appServerTime;
  std::optional<std::string> country = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("user", &UserInitialiseResponse::user),
      qb::key("user_additional_data", &UserInitialiseResponse::userAdditionalData),
      qb::key("access_token", &UserInitialiseResponse::accessToken), qb::key("config", &UserInitialiseResponse::config),
      qb::key("other_configs", &UserInitialiseResponse::otherConfigs),
      qb::key("app_server_time", &UserInitialiseResponse::appServerTime),
      qb::key("country", &UserInitialiseResponse::country));
  QB_TYPED_RESPONSE(UserInitialiseResponse)
  bool operator==(const UserInitialiseResponse&) const = default;
};
static_assert(APIDecodableResponse<UserInitialiseResponse>);

}  // namespace qb
