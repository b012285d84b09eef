#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// Whether a newer app version exists and whether it must be installed.
struct AutoUpdateModel {
  bool hasUpdate;
  bool forceUpdate;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("has_update", &AutoUpdateModel::hasUpdate),
                                                    qb::key("force_update", &AutoUpdateModel::forceUpdate));
  bool operator==(const AutoUpdateModel&) const = default;
};
static_assert(APIModel<AutoUpdateModel>);

}  // namespace qb
