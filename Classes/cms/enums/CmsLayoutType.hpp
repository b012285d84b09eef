#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// How a layout block is filled: by named tags, by custom content, or as a link to a sub-page.
enum class CmsLayoutType : std::int64_t {
  nameTags = 0,
  custom = 1,
  subPage = 2,
};

}  // namespace qb

QB_ENUM(qb::CmsLayoutType, QB_CASE(qb::CmsLayoutType, nameTags), QB_CASE(qb::CmsLayoutType, custom),
        QB_CASE(qb::CmsLayoutType, subPage));
