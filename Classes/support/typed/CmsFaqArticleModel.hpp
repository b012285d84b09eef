#pragma once

#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One article of the FAQ catalogue, with the pages that render it. `type` and `feedType` are the
/// service's numbers, passed through.
struct CmsFaqArticleModel {
  std::string uid;
  std::string title;
  std::string summary;
  std::string imageUrl;
  std::int64_t type;
  std::int64_t feedType;
  CmsStaticUrlModel cmsStaticUrl;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &CmsFaqArticleModel::uid), qb::key("title", &CmsFaqArticleModel::title),
      qb::key("summary", &CmsFaqArticleModel::summary), qb::key("image_url", &CmsFaqArticleModel::imageUrl),
      qb::key("type", &CmsFaqArticleModel::type), qb::key("feed_type", &CmsFaqArticleModel::feedType),
      qb::key("cms_static_url", &CmsFaqArticleModel::cmsStaticUrl));
  bool operator==(const CmsFaqArticleModel&) const = default;
};
static_assert(APIModel<CmsFaqArticleModel>);

}  // namespace qb
