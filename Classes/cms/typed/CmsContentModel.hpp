#pragma once

#include <QBComponentAPI/cms/typed/CmsLayoutModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A bare content page: its layouts and the tags they refer to.
struct CmsContentModel {
  std::vector<CmsLayoutModel> layouts;
  std::vector<CmsTagModel> tags;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("layouts", &CmsContentModel::layouts), qb::key("tags", &CmsContentModel::tags));
  bool operator==(const CmsContentModel&) const = default;
};
static_assert(APIModel<CmsContentModel>);

}  // namespace qb
