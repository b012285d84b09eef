#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/typed/ItemImageModel.hpp>

namespace qb {

/// One entry of the user's collection as the collection lists show it. properties and
/// cmsCacheBusinessFields are opaque texts; lng and lat are degrees, 0 being a place like any other.
struct SimpleItemModel {
  std::int64_t itemId;
  ItemImageModel itemImage;
  Date shootAt;
  std::string name;
  std::optional<std::string> cmsNameUid = std::nullopt;
  std::optional<std::string> diseaseUid = std::nullopt;
  std::optional<std::string> latinName = std::nullopt;
  std::optional<std::string> customName = std::nullopt;
  std::optional<std::string> customNote = std::nullopt;
  std::optional<std::string> properties = std::nullopt;
  std::optional<std::string> cmsCacheBusinessFields = std::nullopt;
  std::optional<double> lng = std::nullopt;
  std::optional<double> lat = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("item_id", &SimpleItemModel::itemId), qb::key("item_image", &SimpleItemModel::itemImage),
      qb::key("shoot_at", &SimpleItemModel::shootAt), qb::key("name", &SimpleItemModel::name),
      qb::key("cms_name_uid", &SimpleItemModel::cmsNameUid), qb::key("disease_uid", &SimpleItemModel::diseaseUid),
      qb::key("latin_name", &SimpleItemModel::latinName), qb::key("custom_name", &SimpleItemModel::customName),
      qb::key("custom_note", &SimpleItemModel::customNote), qb::key("properties", &SimpleItemModel::properties),
      qb::key("cms_cache_business_fields", &SimpleItemModel::cmsCacheBusinessFields),
      qb::key("lng", &SimpleItemModel::lng), qb::key("lat", &SimpleItemModel::lat));
  bool operator==(const SimpleItemModel&) const = default;
};
static_assert(APIModel<SimpleItemModel>);

}  // namespace qb
