#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsLayout;
class QBAPICmsTag;

/// A bare content page: its layouts and the tags they refer to.
class QBAPICmsContent final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsContent, "CmsContent")
  QB_MODEL_LIST(QBAPICmsLayout, layouts, Layouts)
  QB_MODEL_LIST(QBAPICmsTag, tags, Tags)
  QB_FIELDS(QB_REQUIRED(layouts, "layouts"), QB_REQUIRED(tags, "tags"))
};

}  // namespace qb
