#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPISimpleCmsName;

/// A titled list of content names, for example a curated collection.
class QBAPICmsNameList final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsNameList, "CmsNameList")
  QB_VALUE(uid, Uid)
  QB_VALUE(title, Title)
  QB_VALUE(summary, Summary)
  QB_VALUE(imageUrl, ImageUrl)
  QB_MODEL_LIST(QBAPISimpleCmsName, items, Items)
  QB_LIST(fields, Fields)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_OPTIONAL(title, "title"), QB_OPTIONAL(summary, "summary"),
            QB_OPTIONAL(imageUrl, "image_url"), QB_OPTIONAL(items, "items"), QB_OPTIONAL(fields, "fields"))
};

}  // namespace qb
