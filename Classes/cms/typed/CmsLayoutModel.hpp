#pragma once

#include <QBComponentAPI/cms/enums/CmsLayoutType.hpp>
#include <QBComponentAPI/cms/enums/CmsLayoutTypeSet.hpp>
#include <QBComponentAPI/cms/typed/CmsTitleModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One block of a content page. The tag names refer to the content's tags (CmsTagModel::tagName)
/// that fill the block on the page and on its sub-page.
struct CmsLayoutModel {
  std::string name;
  CmsLayoutType type;
  CmsLayoutTypeSet typeSet;
  std::optional<std::vector<std::string>> tagNames = std::nullopt;
  std::optional<std::vector<std::string>> subPageTagNames = std::nullopt;
  std::optional<CmsTitleModel> cmsTitle = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("name", &CmsLayoutModel::name), qb::key("type", &CmsLayoutModel::type),
      qb::key("type_set", &CmsLayoutModel::typeSet), qb::key("tag_names", &CmsLayoutModel::tagNames),
      qb::key("sub_page_tag_names", &CmsLayoutModel::subPageTagNames), qb::key("cms_title", &CmsLayoutModel::cmsTitle));
  bool operator==(const CmsLayoutModel&) const = default;
};
static_assert(APIModel<CmsLayoutModel>);

}  // namespace qb
