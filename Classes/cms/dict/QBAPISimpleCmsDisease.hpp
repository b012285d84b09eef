#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsLayout;
class QBAPICmsStaticUrl;
class QBAPICmsTag;

/// A short reference to a related disease.
class QBAPISimpleCmsDisease final : public QBAPIModel {
  QB_DICT_MODEL(QBAPISimpleCmsDisease, "SimpleCmsDisease")
  QB_VALUE(uid, Uid)
  QB_VALUE(commonName, CommonName)
  QB_MODEL_LIST(QBAPICmsLayout, cmsLayouts, CmsLayouts)
  QB_MODEL_LIST(QBAPICmsTag, cmsTags, CmsTags)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_OPTIONAL(commonName, "common_name"), QB_OPTIONAL(cmsLayouts, "cms_layouts"),
            QB_OPTIONAL(cmsTags, "cms_tags"), QB_OPTIONAL(cmsStaticUrl, "cms_static_url"))
};

}  // namespace qb
