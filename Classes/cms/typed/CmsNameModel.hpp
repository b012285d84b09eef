#pragma once

#include <QBComponentAPI/cms/typed/CmsDiseaseModel.hpp>
#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/CmsLayoutModel.hpp>
#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/cms/typed/CmsVideoModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsNameModel.hpp>
#include <QBComponentAPI/cms/typed/TaxonomyNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The full description of one content name: its taxonomy, images, page layouts and tags. The main
/// image is optional while the list of matched similar images is required (it may be empty).
struct CmsNameModel {
  std::string uid;
  TaxonomyNameModel name;
  std::optional<TaxonomyNameModel> taxonomyParent = std::nullopt;
  std::optional<TaxonomyNameModel> taxonomyFamilyParent = std::nullopt;
  std::vector<TaxonomyNameModel> taxonomies;
  std::optional<std::vector<SimpleCmsNameModel>> children = std::nullopt;
  std::optional<std::vector<CmsLayoutModel>> layouts = std::nullopt;
  std::optional<std::vector<CmsTagModel>> tags = std::nullopt;
  std::optional<CmsImageModel> mainImage = std::nullopt;
  std::vector<CmsImageModel> matchedSimilarImages;
  std::optional<CmsTagModel> confusion = std::nullopt;
  std::optional<CmsDiseaseModel> disease = std::nullopt;
  std::optional<CmsStaticUrlModel> cmsStaticUrl = std::nullopt;
  std::optional<std::vector<CmsVideoModel>> videos = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("uid", &CmsNameModel::uid), qb::key("name", &CmsNameModel::name),
                     qb::key("taxonomy_parent", &CmsNameModel::taxonomyParent),
                     qb::key("taxonomy_family_parent", &CmsNameModel::taxonomyFamilyParent),
                     qb::key("taxonomies", &CmsNameModel::taxonomies), qb::key("children", &CmsNameModel::children),
                     qb::key("layouts", &CmsNameModel::layouts), qb::key("tags", &CmsNameModel::tags),
                     qb::key("main_image", &CmsNameModel::mainImage),
                     qb::key("matched_similar_images", &CmsNameModel::matchedSimilarImages),
                     qb::key("confusion", &CmsNameModel::confusion), qb::key("disease", &CmsNameModel::disease),
                     qb::key("cms_static_url", &CmsNameModel::cmsStaticUrl), qb::key("videos", &CmsNameModel::videos));
  bool operator==(const CmsNameModel&) const = default;
};
static_assert(APIModel<CmsNameModel>);

}  // namespace qb
