#pragma once

#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// An article page.
struct CmsArticleModel {
  std::optional<std::vector<std::string>> titles = std::nullopt;
  std::optional<std::string> shortTitle = std::nullopt;
  std::optional<CmsImageModel> coverImage = std::nullopt;
  std::optional<std::string> summary = std::nullopt;
  std::optional<std::string> additionalSummary = std::nullopt;
  std::optional<std::string> author = std::nullopt;
  std::string url;
  std::optional<std::string> darkUrl = std::nullopt;
  std::vector<CmsTagModel> tags;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("titles", &CmsArticleModel::titles), qb::key("short_title", &CmsArticleModel::shortTitle),
      qb::key("cover_image", &CmsArticleModel::coverImage), qb::key("summary", &CmsArticleModel::summary),
      qb::key("additional_summary", &CmsArticleModel::additionalSummary), qb::key("author", &CmsArticleModel::author),
      qb::key("url", &CmsArticleModel::url), qb::key("dark_url", &CmsArticleModel::darkUrl),
      qb::key("tags", &CmsArticleModel::tags));
  bool operator==(const CmsArticleModel&) const = default;
};
static_assert(APIModel<CmsArticleModel>);

}  // namespace qb
