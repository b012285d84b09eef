#pragma once

#include <QBComponentAPI/cms/typed/SimpleCmsItemFieldModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One entry of a simple item list.
struct SimpleCmsItemModel {
  std::string uid;
  std::string mainImageUrl;
  std::string commonName;
  std::string latinName;
  std::optional<std::vector<SimpleCmsItemFieldModel>> fields = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &SimpleCmsItemModel::uid), qb::key("main_image_url", &SimpleCmsItemModel::mainImageUrl),
      qb::key("common_name", &SimpleCmsItemModel::commonName), qb::key("latin_name", &SimpleCmsItemModel::latinName),
      qb::key("fields", &SimpleCmsItemModel::fields));
  bool operator==(const SimpleCmsItemModel&) const = default;
};
static_assert(APIModel<SimpleCmsItemModel>);

}  // namespace qb
