#pragma once

#include <QBComponentAPI/cms/typed/CmsLayoutModel.hpp>
#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A short reference to a related disease.
struct SimpleCmsDiseaseModel {
  std::string uid;
  std::optional<std::string> commonName = std::nullopt;
  std::optional<std::vector<CmsLayoutModel>> cmsLayouts = std::nullopt;
  std::optional<std::vector<CmsTagModel>> cmsTags = std::nullopt;
  std::optional<CmsStaticUrlModel> cmsStaticUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &SimpleCmsDiseaseModel::uid), qb::key("common_name", &SimpleCmsDiseaseModel::commonName),
      qb::key("cms_layouts", &SimpleCmsDiseaseModel::cmsLayouts), qb::key("cms_tags", &SimpleCmsDiseaseModel::cmsTags),
      qb::key("cms_static_url", &SimpleCmsDiseaseModel::cmsStaticUrl));
  bool operator==(const SimpleCmsDiseaseModel&) const = default;
};
static_assert(APIModel<SimpleCmsDiseaseModel>);

}  // namespace qb
