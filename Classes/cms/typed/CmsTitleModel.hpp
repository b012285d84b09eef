#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The heading of a layout or tag block, with an icon for each display mode.
struct CmsTitleModel {
  std::optional<std::string> displayName = std::nullopt;
  std::optional<std::string> lightModeIconUrl = std::nullopt;
  std::optional<std::string> darkModeIconUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("display_name", &CmsTitleModel::displayName),
                                                    qb::key("light_mode_icon_url", &CmsTitleModel::lightModeIconUrl),
                                                    qb::key("dark_mode_icon_url", &CmsTitleModel::darkModeIconUrl));
  bool operator==(const CmsTitleModel&) const = default;
};
static_assert(APIModel<CmsTitleModel>);

}  // namespace qb
