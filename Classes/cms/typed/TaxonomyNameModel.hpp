#pragma once

#include <QBComponentAPI/cms/enums/TaxonomyType.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One rank of a taxonomy: the name itself, its parent, its family or an entry of a name's
/// taxonomies. Every field but the common names is required.
struct TaxonomyNameModel {
  std::string uid;
  TaxonomyType type;
  std::string taxonomyTypeName;
  std::string preferredName;
  std::string latinName;
  std::optional<std::vector<std::string>> commonNames = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &TaxonomyNameModel::uid), qb::key("type", &TaxonomyNameModel::type),
      qb::key("taxonomy_type_name", &TaxonomyNameModel::taxonomyTypeName),
      qb::key("preferred_name", &TaxonomyNameModel::preferredName),
      qb::key("latin_name", &TaxonomyNameModel::latinName), qb::key("common_names", &TaxonomyNameModel::commonNames));
  bool operator==(const TaxonomyNameModel&) const = default;
};
static_assert(APIModel<TaxonomyNameModel>);

}  // namespace qb
