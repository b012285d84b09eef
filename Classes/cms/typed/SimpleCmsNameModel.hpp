#pragma once

#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <map>

namespace qb {

/// The summary of a content name shown in lists. "properties" is carried unread.
struct SimpleCmsNameModel {
  std::string uid;
  std::optional<std::string> taxonomyTypeName = std::nullopt;
  std::optional<std::string> preferredName = std::nullopt;
  std::optional<std::string> mainImageUrl = std::nullopt;
  std::optional<std::string> latinName = std::nullopt;
  std::optional<CmsStaticUrlModel> cmsStaticUrl = std::nullopt;
  std::optional<std::map<std::string, AnyCodable>> properties = std::nullopt;
  std::optional<std::vector<CmsTagModel>> cmsTags = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &SimpleCmsNameModel::uid), qb::key("taxonomy_type_name", &SimpleCmsNameModel::taxonomyTypeName),
      qb::key("preferred_name", &SimpleCmsNameModel::preferredName),
      qb::key("main_image_url", &SimpleCmsNameModel::mainImageUrl),
      qb::key("latin_name", &SimpleCmsNameModel::latinName),
      qb::key("cms_static_url", &SimpleCmsNameModel::cmsStaticUrl),
      qb::key("properties", &SimpleCmsNameModel::properties), qb::key("cms_tags", &SimpleCmsNameModel::cmsTags));
  bool operator==(const SimpleCmsNameModel&) const = default;
};
static_assert(APIModel<SimpleCmsNameModel>);

}  // namespace qb
