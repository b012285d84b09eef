#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsStaticUrl;

/// One article of the FAQ catalogue, with the pages that render it. Every field is required; `type` and
/// `feedType` are the service's numbers, kept as they came. The reason for a missing page names the
/// field "CmsStaticUrl", capitalised, as it always has.
class SPAPICmsFaqArticle final : public QBAPIModel {
  QB_DICT_MODEL(SPAPICmsFaqArticle, "CmsFaqArticle")
  QB_VALUE(uid, Uid)
  QB_VALUE(title, Title)
  QB_VALUE(summary, Summary)
  QB_VALUE(imageUrl, ImageUrl)
  QB_VALUE(type, Type)
  QB_VALUE(feedType, FeedType)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_REQUIRED(title, "title"), QB_REQUIRED(summary, "summary"),
            QB_REQUIRED(imageUrl, "image_url"), QB_REQUIRED(type, "type"), QB_REQUIRED(feedType, "feed_type"),
            QB_REQUIRED_AS(cmsStaticUrl, "cms_static_url", "CmsStaticUrl"))
};

}  // namespace qb
