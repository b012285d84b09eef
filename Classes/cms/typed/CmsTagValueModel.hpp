#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The kind of a tag value alone, read before choosing the record to decode the value as.
struct CmsTagValueModel {
  CmsTagValueType type;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("type", &CmsTagValueModel::type));
  bool operator==(const CmsTagValueModel&) const = default;
};
static_assert(APIModel<CmsTagValueModel>);

}  // namespace qb
