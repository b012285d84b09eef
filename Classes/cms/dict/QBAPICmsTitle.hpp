#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The heading of a layout or tag block, with an icon for each display mode. No field is required.
class QBAPICmsTitle final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTitle, "CmsTitle")
  QB_VALUE(displayName, DisplayName)
  QB_VALUE(lightModeIconUrl, LightModeIconUrl)
  QB_VALUE(darkModeIconUrl, DarkModeIconUrl)
  QB_FIELDS(QB_OPTIONAL(displayName, "display_name"), QB_OPTIONAL(lightModeIconUrl, "light_mode_icon_url"),
            QB_OPTIONAL(darkModeIconUrl, "dark_mode_icon_url"))
};

}  // namespace qb
