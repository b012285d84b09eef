#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsStaticUrl;

/// The summary of a content name used in lists, children and item records. Replies may also carry
/// "cms_tags" here; this face neither reads nor writes them.
class QBAPISimpleCmsName final : public QBAPIModel {
  QB_DICT_MODEL(QBAPISimpleCmsName, "SimpleCmsName")
  QB_VALUE(uid, Uid)
  QB_VALUE(taxonomyTypeName, TaxonomyTypeName)
  QB_VALUE(preferredName, PreferredName)
  QB_VALUE(mainImageUrl, MainImageUrl)
  QB_VALUE(latinName, LatinName)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  /// Free-form properties, kept exactly as the reply gave them and never interpreted.
  QB_VALUE(properties, Properties)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_OPTIONAL(taxonomyTypeName, "taxonomy_type_name"),
            QB_OPTIONAL(preferredName, "preferred_name"), QB_OPTIONAL(mainImageUrl, "main_image_url"),
            QB_OPTIONAL(latinName, "latin_name"), QB_OPTIONAL(cmsStaticUrl, "cms_static_url"),
            QB_OPTIONAL(properties, "properties"))
};

}  // namespace qb
