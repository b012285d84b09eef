#pragma once

#include <QBComponentAPI/cms/enums/CmsColor.hpp>
#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A colour tag value.
struct CmsTagColorsModel {
  CmsTagValueType type;
  CmsColor color;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &CmsTagColorsModel::type), qb::key("color", &CmsTagColorsModel::color));
  bool operator==(const CmsTagColorsModel&) const = default;
};
static_assert(APIModel<CmsTagColorsModel>);

}  // namespace qb
