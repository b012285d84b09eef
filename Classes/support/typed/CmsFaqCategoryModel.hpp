#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/typed/CmsFaqArticleModel.hpp>

namespace qb {

/// One category of the FAQ catalogue and its articles.
struct CmsFaqCategoryModel {
  std::string uid;
  std::string title;
  std::string summary;
  std::string imageUrl;
  std::vector<CmsFaqArticleModel> cmsFaqArticleList;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &CmsFaqCategoryModel::uid), qb::key("title", &CmsFaqCategoryModel::title),
      qb::key("summary", &CmsFaqCategoryModel::summary), qb::key("image_url", &CmsFaqCategoryModel::imageUrl),
      qb::key("cms_faq_article_list", &CmsFaqCategoryModel::cmsFaqArticleList));
  bool operator==(const CmsFaqCategoryModel&) const = default;
};
static_assert(APIModel<CmsFaqCategoryModel>);

}  // namespace qb
