#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The light and dark page of a share link.
struct ShareUrlModel {
  std::string lightUrl;
  std::string darkUrl;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("light_url", &ShareUrlModel::lightUrl), qb::key("dark_url", &ShareUrlModel::darkUrl));
  bool operator==(const ShareUrlModel&) const = default;
};
static_assert(APIModel<ShareUrlModel>);

}  // namespace qb
