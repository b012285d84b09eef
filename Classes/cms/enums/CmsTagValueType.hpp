#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The kind of a tag value, which tells the record a tag value map has the shape of: CmsTagString,
/// CmsTag, CmsImage, CmsMain, CmsTaxonomyName or CmsTagColors, in case order.
enum class CmsTagValueType : std::int64_t {
  cmsTagValueString = 0,
  cmsTagValueTag = 1,
  cmsTagValueImage = 2,
  cmsTagValueMain = 3,
  cmsTagValueTaxonomyName = 4,
  cmsTagValueColor = 5,
};

}  // namespace qb

QB_ENUM(qb::CmsTagValueType, QB_CASE(qb::CmsTagValueType, cmsTagValueString),
        QB_CASE(qb::CmsTagValueType, cmsTagValueTag), QB_CASE(qb::CmsTagValueType, cmsTagValueImage),
        QB_CASE(qb::CmsTagValueType, cmsTagValueMain), QB_CASE(qb::CmsTagValueType, cmsTagValueTaxonomyName),
        QB_CASE(qb::CmsTagValueType, cmsTagValueColor));
