#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/enums/TaxonomyType.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A taxonomy name carried as a tag value: "type" is the tag-value kind and "taxonomy_type" the
/// rank.
struct CmsTaxonomyNameModel {
  CmsTagValueType type;
  TaxonomyType taxonomyType;
  std::string taxonomyTypeName;
  std::string preferredName;
  std::string latinName;
  std::optional<std::vector<std::string>> commonNames = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("type", &CmsTaxonomyNameModel::type), qb::key("taxonomy_type", &CmsTaxonomyNameModel::taxonomyType),
      qb::key("taxonomy_type_name", &CmsTaxonomyNameModel::taxonomyTypeName),
      qb::key("preferred_name", &CmsTaxonomyNameModel::preferredName),
      qb::key("latin_name", &CmsTaxonomyNameModel::latinName),
      qb::key("common_names", &CmsTaxonomyNameModel::commonNames));
  bool operator==(const CmsTaxonomyNameModel&) const = default;
};
static_assert(APIModel<CmsTaxonomyNameModel>);

}  // namespace qb
