#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsTitle;

/// One block of a content page: its layout type and visual kind, and the names of the tags (CmsTag
/// `tagName`) that fill it on the page and on its sub-page.
class QBAPICmsLayout final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsLayout, "CmsLayout")
  QB_VALUE(name, Name)
  QB_INTEGER(type, Type)
  QB_INTEGER(typeSet, TypeSet)
  QB_LIST(tagNames, TagNames)
  QB_LIST(subPageTagNames, SubPageTagNames)
  QB_MODEL(QBAPICmsTitle, cmsTitle, CmsTitle)
  QB_FIELDS(QB_REQUIRED(name, "name"), QB_OPTIONAL(type, "type"), QB_OPTIONAL(typeSet, "type_set"),
            QB_OPTIONAL(tagNames, "tag_names"), QB_OPTIONAL(subPageTagNames, "sub_page_tag_names"),
            QB_OPTIONAL(cmsTitle, "cms_title"))
};

}  // namespace qb
