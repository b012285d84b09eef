#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalDetImageUrlResponse.hpp>

namespace qb {

/// update_item_original_det_image_url: the same facts of an uploaded original as update_item_original_image_url
/// records, with the address under its own key.
struct ItemUpdateItemOriginalDetImageUrlRequest {
  std::int64_t itemId;
  std::string originalDetImageUrl;
  std::optional<std::string> originalImageSha1 = std::nullopt;
  std::optional<std::int64_t> originalImageHeight = std::nullopt;
  std::optional<std::int64_t> originalImageWidth = std::nullopt;
  std::optional<std::int64_t> originalImageFileSize = std::nullopt;
  std::optional<std::string> originalImageFileFormat = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("item_id", &ItemUpdateItemOriginalDetImageUrlRequest::itemId),
      qb::key("original_det_image_url", &ItemUpdateItemOriginalDetImageUrlRequest::originalDetImageUrl),
      qb::key("original_image_sha1", &ItemUpdateItemOriginalDetImageUrlRequest::originalImageSha1),
      qb::key("original_image_height", &ItemUpdateItemOriginalDetImageUrlRequest::originalImageHeight),
      qb::key("original_image_width", &ItemUpdateItemOriginalDetImageUrlRequest::originalImageWidth),
      qb::key("original_image_file_size", &ItemUpdateItemOriginalDetImageUrlRequest::originalImageFileSize),
      qb::key("original_image_file_format", &ItemUpdateItemOriginalDetImageUrlRequest::originalImageFileFormat));
  QB_TYPED_REQUEST(item::kUpdateItemOriginalDetImageUrl, ItemUpdateItemOriginalDetImageUrlResponse)
  bool operator==(const ItemUpdateItemOriginalDetImageUrlRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemUpdateItemOriginalDetImageUrlRequest>);

}  // namespace qb
