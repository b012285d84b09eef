#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemUpdateItemOriginalImageUrlResponse.hpp>

namespace qb {

/// update_item_original_image_url: records the address of an item's original photograph, uploaded elsewhere, with what
/// is known of the file (SHA-1 digest as text, pixel height and width, size in bytes, format name).
struct ItemUpdateItemOriginalImageUrlRequest {
  std::int64_t itemId;
  std::string originalImageUrl;
  std::optional<std::string> originalImageSha1 = std::nullopt;
  std::optional<std::int64_t> originalImageHeight = std::nullopt;
  std::optional<std::int64_t> originalImageWidth = std::nullopt;
  std::optional<std::int64_t> originalImageFileSize = std::nullopt;
  std::optional<std::string> originalImageFileFormat = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("item_id", &ItemUpdateItemOriginalImageUrlRequest::itemId),
      qb::key("original_image_url", &ItemUpdateItemOriginalImageUrlRequest::originalImageUrl),
      qb::key("original_image_sha1", &ItemUpdateItemOriginalImageUrlRequest::originalImageSha1),
      qb::key("original_image_height", &ItemUpdateItemOriginalImageUrlRequest::originalImageHeight),
      qb::key("original_image_width", &ItemUpdateItemOriginalImageUrlRequest::originalImageWidth),
      qb::key("original_image_file_size", &ItemUpdateItemOriginalImageUrlRequest::originalImageFileSize),
      qb::key("original_image_file_format", &ItemUpdateItemOriginalImageUrlRequest::originalImageFileFormat));
  QB_TYPED_REQUEST(item::kUpdateItemOriginalImageUrl, ItemUpdateItemOriginalImageUrlResponse)
  bool operator==(const ItemUpdateItemOriginalImageUrlRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemUpdateItemOriginalImageUrlRequest>);

}  // namespace qb
