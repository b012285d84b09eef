#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// A video of a content name. The classification is kept as the integer the reply gave, known or not.
class QBAPICmsVideo final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsVideo, "CmsVideo")
  QB_INTEGER(videoClassification, VideoClassification)
  QB_VALUE(title, Title)
  QB_VALUE(imageUrl, ImageUrl)
  QB_VALUE(videoUrl, VideoUrl)
  QB_FIELDS(QB_OPTIONAL(videoClassification, "video_classification"), QB_REQUIRED(title, "title"),
            QB_REQUIRED(imageUrl, "image_url"), QB_REQUIRED(videoUrl, "video_url"))
};

}  // namespace qb
