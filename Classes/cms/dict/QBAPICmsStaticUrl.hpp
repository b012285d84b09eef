#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The pair of pages that render a piece of content in light and dark mode.
class QBAPICmsStaticUrl final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsStaticUrl, "CmsStaticUrl")
  QB_VALUE(lightUrl, LightUrl)
  QB_VALUE(darkUrl, DarkUrl)
  QB_FIELDS(QB_REQUIRED(lightUrl, "light_url"), QB_REQUIRED(darkUrl, "dark_url"))
};

}  // namespace qb
