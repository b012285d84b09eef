#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The visual kind of a layout block.
enum class CmsLayoutTypeSet : std::int64_t {
  faq = 0,
  gallery = 1,
  kvGrid = 2,
  taxonGrid = 3,
  waterfall = 4,
  waterfallGrid = 5,
  nameCard = 6,
  mainImage = 7,
  multiLevelWaterfall = 8,
  title = 9,
  illustration = 10,
  siblingNameList = 11,
};

}  // namespace qb

QB_ENUM(qb::CmsLayoutTypeSet, QB_CASE(qb::CmsLayoutTypeSet, faq), QB_CASE(qb::CmsLayoutTypeSet, gallery),
        QB_CASE(qb::CmsLayoutTypeSet, kvGrid), QB_CASE(qb::CmsLayoutTypeSet, taxonGrid),
        QB_CASE(qb::CmsLayoutTypeSet, waterfall), QB_CASE(qb::CmsLayoutTypeSet, waterfallGrid),
        QB_CASE(qb::CmsLayoutTypeSet, nameCard), QB_CASE(qb::CmsLayoutTypeSet, mainImage),
        QB_CASE(qb::CmsLayoutTypeSet, multiLevelWaterfall), QB_CASE(qb::CmsLayoutTypeSet, title),
        QB_CASE(qb::CmsLayoutTypeSet, illustration), QB_CASE(qb::CmsLayoutTypeSet, siblingNameList));
