#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The addresses of an item's photograph in its several sizes; every one may be absent.
struct ItemImageModel {
  std::optional<std::string> iconUrl = std::nullopt;
  std::optional<std::string> thumbnailUrl = std::nullopt;
  std::optional<std::string> imageUrl = std::nullopt;
  std::optional<std::string> originalUrl = std::nullopt;
  std::optional<std::string> signatureImageUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("icon_url", &ItemImageModel::iconUrl), qb::key("thumbnail_url", &ItemImageModel::thumbnailUrl),
      qb::key("image_url", &ItemImageModel::imageUrl), qb::key("original_url", &ItemImageModel::originalUrl),
      qb::key("signature_image_url", &ItemImageModel::signatureImageUrl));
  bool operator==(const ItemImageModel&) const = default;
};
static_assert(APIModel<ItemImageModel>);

}  // namespace qb
