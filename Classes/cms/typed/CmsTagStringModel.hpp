#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A text tag value, optionally labelled.
struct CmsTagStringModel {
  CmsTagValueType type;
  std::string value;
  std::optional<std::string> key = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &CmsTagStringModel::type), qb::key("value", &CmsTagStringModel::value),
                     qb::key("key", &CmsTagStringModel::key));
  bool operator==(const CmsTagStringModel&) const = default;
};
static_assert(APIModel<CmsTagStringModel>);

}  // namespace qb
