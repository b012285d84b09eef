#pragma once

#include <map>

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/ClientConfigModel.hpp>

namespace qb {

struct UserGetConfigResponse {
  ClientConfigModel config;
  std::map<std::string, AnyCodable> otherConfigs;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("config", &UserGetConfigResponse::config),
                                                    qb::key("other_configs", &UserGetConfigResponse::otherConfigs));
  QB_TYPED_RESPONSE(UserGetConfigResponse)
  bool operator==(const UserGetConfigResponse&) const = default;
};
static_assert(APIDecodableResponse<UserGetConfigResponse>);

}  // namespace qb
