#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsTag;
class QBAPICopyright;

/// An image of a content name, also usable as a tag value (`type` is the tag-value type). This face also
/// keeps the "illustration" text; `similarity` is the number object as the reply gave it.
class QBAPICmsImage final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsImage, "CmsImage")
  QB_INTEGER(type, Type)
  QB_VALUE(imageUrl, ImageUrl)
  QB_MODEL(QBAPICopyright, imageCopyright, ImageCopyright)
  QB_MODEL_LIST(QBAPICmsTag, tags, Tags)
  QB_VALUE(illustration, Illustration)
  QB_VALUE(comment, Comment)
  QB_VALUE(similarity, Similarity)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_REQUIRED(imageUrl, "image_url"),
            QB_OPTIONAL(imageCopyright, "image_copyright"), QB_OPTIONAL(tags, "tags"),
            QB_OPTIONAL(illustration, "illustration"), QB_OPTIONAL(comment, "comment"),
            QB_OPTIONAL(similarity, "similarity"))
};

}  // namespace qb
