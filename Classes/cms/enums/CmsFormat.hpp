#pragma once

#include <QBComponentAPI/frame/Enum.hpp>
#include <cstdint>

namespace qb {

/// The text format of a piece of content. No record carries it; it is offered with the catalogue's
/// other enumerations.
enum class CmsFormat : std::int64_t {
  markdown = 0,
  plainText = 1,
};

}  // namespace qb

QB_ENUM(qb::CmsFormat, QB_CASE(qb::CmsFormat, markdown), QB_CASE(qb::CmsFormat, plainText));
