#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The pages that render a piece of content in light and in dark mode.
struct CmsStaticUrlModel {
  std::string lightUrl;
  std::string darkUrl;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("light_url", &CmsStaticUrlModel::lightUrl),
                                                    qb::key("dark_url", &CmsStaticUrlModel::darkUrl));
  bool operator==(const CmsStaticUrlModel&) const = default;
};
static_assert(APIModel<CmsStaticUrlModel>);

}  // namespace qb
