#pragma once

#include <QBComponentAPI/cms/typed/CmsNameModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/typed/ItemImageModel.hpp>

namespace qb {

/// One item of the collection in full: the simple item's fields and the identification result, the
/// candidate content names and their scores index for index (both lists may be empty, neither absent).
struct ItemDetailModel {
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
  std::vector<CmsNameModel> cmsNames;
  std::vector<double> probabilities;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("item_id", &ItemDetailModel::itemId), qb::key("item_image", &ItemDetailModel::itemImage),
      qb::key("shoot_at", &ItemDetailModel::shootAt), qb::key("name", &ItemDetailModel::name),
      qb::key("cms_name_uid", &ItemDetailModel::cmsNameUid), qb::key("disease_uid", &ItemDetailModel::diseaseUid),
      qb::key("latin_name", &ItemDetailModel::latinName), qb::key("custom_name", &ItemDetailModel::customName),
      qb::key("custom_note", &ItemDetailModel::customNote), qb::key("properties", &ItemDetailModel::properties),
      qb::key("cms_cache_business_fields", &ItemDetailModel::cmsCacheBusinessFields),
      qb::key("lng", &ItemDetailModel::lng), qb::key("lat", &ItemDetailModel::lat),
      qb::key("cms_names", &ItemDetailModel::cmsNames), qb::key("probabilities", &ItemDetailModel::probabilities));
  bool operator==(const ItemDetailModel&) const = default;
};
static_assert(APIModel<ItemDetailModel>);

}  // namespace qb
