#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/TaxonomyNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A compact reference to a content name, carried as a tag value. Unlike CmsNameModel it requires
/// its main image.
struct CmsMainModel {
  CmsTagValueType type;
  std::string uid;
  TaxonomyNameModel name;
  std::optional<TaxonomyNameModel> taxonomyParent = std::nullopt;
  std::optional<TaxonomyNameModel> taxonomyFamilyParent = std::nullopt;
  CmsImageModel mainImage;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("type", &CmsMainModel::type), qb::key("uid", &CmsMainModel::uid),
                     qb::key("name", &CmsMainModel::name), qb::key("taxonomy_parent", &CmsMainModel::taxonomyParent),
                     qb::key("taxonomy_family_parent", &CmsMainModel::taxonomyFamilyParent),
                     qb::key("main_image", &CmsMainModel::mainImage));
  bool operator==(const CmsMainModel&) const = default;
};
static_assert(APIModel<CmsMainModel>);

}  // namespace qb
