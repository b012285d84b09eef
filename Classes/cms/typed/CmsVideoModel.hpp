#pragma once

#include <QBComponentAPI/cms/enums/VideoClassification.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A video of a content name.
struct CmsVideoModel {
  VideoClassification videoClassification;
  std::string title;
  std::string imageUrl;
  std::string videoUrl;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("video_classification", &CmsVideoModel::videoClassification), qb::key("title", &CmsVideoModel::title),
      qb::key("image_url", &CmsVideoModel::imageUrl), qb::key("video_url", &CmsVideoModel::videoUrl));
  bool operator==(const CmsVideoModel&) const = default;
};
static_assert(APIModel<CmsVideoModel>);

}  // namespace qb
