#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/AutoUpdateModel.hpp>
#include <QBComponentAPI/user/typed/LegalConfigModel.hpp>

namespace qb {

/// The client configuration returned by initialise and get_config.
struct ClientConfigModel {
  AutoUpdateModel autoUpdate;
  std::int64_t expertDefaultCount;
  std::optional<std::string> shareAppUrl = std::nullopt;
  std::int64_t timestamp;
  LegalConfigModel legalConfig;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("auto_update", &ClientConfigModel::autoUpdate),
      qb::key("expert_default_count", &ClientConfigModel::expertDefaultCount),
      qb::key("share_app_url", &ClientConfigModel::shareAppUrl), qb::key("timestamp", &ClientConfigModel::timestamp),
      qb::key("legal_config", &ClientConfigModel::legalConfig));
  bool operator==(const ClientConfigModel&) const = default;
};
static_assert(APIModel<ClientConfigModel>);

}  // namespace qb
