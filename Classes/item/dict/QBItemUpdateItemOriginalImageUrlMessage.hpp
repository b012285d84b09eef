#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// update_item_original_image_url: records the address of an item's original photograph, uploaded
/// elsewhere, with what is known of the file (SHA-1 digest as text, pixel height and width, size in bytes,
/// format name).
class QBItemUpdateItemOriginalImageUrlMessage final : public DictMessage<QBItemUpdateItemOriginalImageUrlMessage> {
  QB_DICT_MESSAGE(QBItemUpdateItemOriginalImageUrlMessage, "UpdateItemOriginalImageUrl",
                  item::kUpdateItemOriginalImageUrl)
  static std::shared_ptr<QBItemUpdateItemOriginalImageUrlMessage> initWithData(
      std::optional<JsonValue> itemId, std::optional<JsonValue> originalImageUrl,
      std::optional<JsonValue> originalImageSha1, std::optional<JsonValue> originalImageHeight,
      std::optional<JsonValue> originalImageWidth, std::optional<JsonValue> originalImageFileSize,
      std::optional<JsonValue> originalImageFileFormat) {
    return make<&Self::itemId_, &Self::originalImageUrl_, &Self::originalImageSha1_, &Self::originalImageHeight_,
                &Self::originalImageWidth_, &Self::originalImageFileSize_, &Self::originalImageFileFormat_>(
        std::move(itemId), std::move(originalImageUrl), std::move(originalImageSha1), std::move(originalImageHeight),
        std::move(originalImageWidth), std::move(originalImageFileSize), std::move(originalImageFileFormat));
  }

  QB_VALUE(itemId, ItemId)
  QB_VALUE(originalImageUrl, OriginalImageUrl)
  QB_VALUE(originalImageSha1, OriginalImageSha1)
  QB_VALUE(originalImageHeight, OriginalImageHeight)
  QB_VALUE(originalImageWidth, OriginalImageWidth)
  QB_VALUE(originalImageFileSize, OriginalImageFileSize)
  QB_VALUE(originalImageFileFormat, OriginalImageFileFormat)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_REQUIRED(originalImageUrl, "original_image_url"),
            QB_OPTIONAL(originalImageSha1, "original_image_sha1"),
            QB_OPTIONAL(originalImageHeight, "original_image_height"),
            QB_OPTIONAL(originalImageWidth, "original_image_width"),
            QB_OPTIONAL(originalImageFileSize, "original_image_file_size"),
            QB_OPTIONAL(originalImageFileFormat, "original_image_file_format"))
  QB_RESULTS()
};

}  // namespace qb
