#pragma once

#include <QBComponentAPI/cms/typed/SimpleCmsNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A titled list of content names, such as a curated collection.
struct CmsNameListModel {
  std::string uid;
  std::optional<std::string> title = std::nullopt;
  std::optional<std::string> summary = std::nullopt;
  std::optional<std::string> imageUrl = std::nullopt;
  std::optional<std::vector<SimpleCmsNameModel>> items = std::nullopt;
  std::optional<std::vector<std::string>> fields = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("uid", &CmsNameListModel::uid), qb::key("title", &CmsNameListModel::title),
                     qb::key("summary", &CmsNameListModel::summary), qb::key("image_url", &CmsNameListModel::imageUrl),
                     qb::key("items", &CmsNameListModel::items), qb::key("fields", &CmsNameListModel::fields));
  bool operator==(const CmsNameListModel&) const = default;
};
static_assert(APIModel<CmsNameListModel>);

}  // namespace qb
