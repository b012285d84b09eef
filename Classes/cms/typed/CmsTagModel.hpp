#pragma once

#include <QBComponentAPI/cms/enums/CmsTagValueType.hpp>
#include <QBComponentAPI/cms/typed/CmsTitleModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>
#include <map>

namespace qb {

/// A named group of values. Each tag value stays the JSON object it was given; its "type"
/// (a CmsTagValueType) says which record to decode it as.
struct CmsTagModel {
  CmsTagValueType type;
  std::string tagName;
  std::optional<std::string> displayTagName = std::nullopt;
  std::optional<CmsTitleModel> cmsTitle = std::nullopt;
  std::vector<std::map<std::string, AnyCodable>> tagValues;
  std::optional<std::string> sourceUrl = std::nullopt;
  std::optional<bool> withEdibleOrMedicalInfo = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("type", &CmsTagModel::type), qb::key("tag_name", &CmsTagModel::tagName),
      qb::key("display_tag_name", &CmsTagModel::displayTagName), qb::key("cms_title", &CmsTagModel::cmsTitle),
      qb::key("tag_values", &CmsTagModel::tagValues), qb::key("source_url", &CmsTagModel::sourceUrl),
      qb::key("with_edible_or_medical_info", &CmsTagModel::withEdibleOrMedicalInfo));
  bool operator==(const CmsTagModel&) const = default;
};
static_assert(APIModel<CmsTagModel>);

}  // namespace qb
