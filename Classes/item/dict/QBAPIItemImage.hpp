#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The addresses of an item's photograph in its several sizes. Every field is optional: an empty map is a
/// valid image set.
class QBAPIItemImage final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIItemImage, "ItemImage")
  QB_VALUE(iconUrl, IconUrl)
  QB_VALUE(thumbnailUrl, ThumbnailUrl)
  QB_VALUE(imageUrl, ImageUrl)
  QB_VALUE(originalUrl, OriginalUrl)
  QB_VALUE(signatureImageUrl, SignatureImageUrl)
  QB_FIELDS(QB_OPTIONAL(iconUrl, "icon_url"), QB_OPTIONAL(thumbnailUrl, "thumbnail_url"),
            QB_OPTIONAL(imageUrl, "image_url"), QB_OPTIONAL(originalUrl, "original_url"),
            QB_OPTIONAL(signatureImageUrl, "signature_image_url"))
};

}  // namespace qb
