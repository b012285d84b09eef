#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsStaticUrl;

/// One article suggested as the answer to a question the user typed. No field is required.
class SPAPIAutoReplyArticle final : public QBAPIModel {
  QB_DICT_MODEL(SPAPIAutoReplyArticle, "AutoReplyArticle")
  QB_VALUE(question, Question)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_FIELDS(QB_OPTIONAL(question, "question"), QB_OPTIONAL(cmsStaticUrl, "cms_static_url"))
};

}  // namespace qb
