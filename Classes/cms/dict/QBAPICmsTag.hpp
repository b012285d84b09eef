#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsTitle;

/// A named group of values. The values stay raw maps, copied unchanged: the "type" of each says which
/// record it has the shape of (CmsTagString, CmsTag, CmsImage, CmsMain, CmsTaxonomyName, CmsTagColors),
/// and the app reads it with that class's initWithJsonObject (QBAPICmsTagValue reads the type alone).
class QBAPICmsTag final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsTag, "CmsTag")
  QB_INTEGER(type, Type)
  QB_VALUE(tagName, TagName)
  QB_VALUE(displayTagName, DisplayTagName)
  QB_MODEL(QBAPICmsTitle, cmsTitle, CmsTitle)
  QB_LIST(tagValues, TagValues)
  QB_VALUE(sourceUrl, SourceUrl)
  /// A boolean, kept as the number object the reply gave.
  QB_VALUE(withEdibleOrMedicalInfo, WithEdibleOrMedicalInfo)
  QB_FIELDS(QB_OPTIONAL(type, "type"), QB_REQUIRED(tagName, "tag_name"),
            QB_OPTIONAL(displayTagName, "display_tag_name"), QB_OPTIONAL(cmsTitle, "cms_title"),
            QB_REQUIRED(tagValues, "tag_values"), QB_OPTIONAL(sourceUrl, "source_url"),
            QB_OPTIONAL(withEdibleOrMedicalInfo, "with_edible_or_medical_info"))
};

}  // namespace qb
