#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsImage;
class QBAPICmsTag;

/// An article page.
class QBAPICmsArticle final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsArticle, "CmsArticle")
  QB_LIST(titles, Titles)
  QB_VALUE(shortTitle, ShortTitle)
  QB_MODEL(QBAPICmsImage, coverImage, CoverImage)
  QB_VALUE(summary, Summary)
  QB_VALUE(additionalSummary, AdditionalSummary)
  QB_VALUE(author, Author)
  QB_VALUE(url, Url)
  QB_VALUE(darkUrl, DarkUrl)
  QB_MODEL_LIST(QBAPICmsTag, tags, Tags)
  QB_FIELDS(QB_OPTIONAL(titles, "titles"), QB_OPTIONAL(shortTitle, "short_title"),
            QB_OPTIONAL(coverImage, "cover_image"), QB_OPTIONAL(summary, "summary"),
            QB_OPTIONAL(additionalSummary, "additional_summary"), QB_OPTIONAL(author, "author"),
            QB_REQUIRED(url, "url"), QB_OPTIONAL(darkUrl, "dark_url"), QB_REQUIRED(tags, "tags"))
};

}  // namespace qb
