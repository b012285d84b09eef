#pragma once

#include <QBComponentAPI/cms/enums/DiseaseLevel.hpp>
#include <QBComponentAPI/cms/typed/CmsArticleModel.hpp>
#include <QBComponentAPI/cms/typed/CmsImageModel.hpp>
#include <QBComponentAPI/cms/typed/CmsLayoutModel.hpp>
#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/cms/typed/CmsTagModel.hpp>
#include <QBComponentAPI/cms/typed/DiagnoseDetectModel.hpp>
#include <QBComponentAPI/cms/typed/SimpleCmsDiseaseModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// A disease description attached to a content name. Its uid and level are optional: a reply
/// without a level leaves it absent.
struct CmsDiseaseModel {
  std::optional<std::string> uid = std::nullopt;
  CmsArticleModel article;
  std::optional<std::string> desc = std::nullopt;
  std::optional<std::string> diseaseImageUrl = std::nullopt;
  std::optional<std::vector<CmsLayoutModel>> cmsLayouts = std::nullopt;
  std::optional<std::vector<CmsTagModel>> cmsTags = std::nullopt;
  std::optional<std::string> commonName = std::nullopt;
  std::optional<std::string> symptomSummary = std::nullopt;
  std::optional<CmsStaticUrlModel> cmsStaticUrl = std::nullopt;
  std::optional<DiseaseLevel> diseaseLevel = std::nullopt;
  std::optional<SimpleCmsDiseaseModel> relatedDiseaseName = std::nullopt;
  std::optional<DiagnoseDetectModel> diagnoseDetect = std::nullopt;
  std::optional<std::vector<CmsImageModel>> matchedSimilarImages = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("uid", &CmsDiseaseModel::uid), qb::key("article", &CmsDiseaseModel::article),
      qb::key("desc", &CmsDiseaseModel::desc), qb::key("disease_image_url", &CmsDiseaseModel::diseaseImageUrl),
      qb::key("cms_layouts", &CmsDiseaseModel::cmsLayouts), qb::key("cms_tags", &CmsDiseaseModel::cmsTags),
      qb::key("common_name", &CmsDiseaseModel::commonName),
      qb::key("symptom_summary", &CmsDiseaseModel::symptomSummary),
      qb::key("cms_static_url", &CmsDiseaseModel::cmsStaticUrl),
      qb::key("disease_level", &CmsDiseaseModel::diseaseLevel),
      qb::key("related_disease_name", &CmsDiseaseModel::relatedDiseaseName),
      qb::key("diagnose_detect", &CmsDiseaseModel::diagnoseDetect),
      qb::key("matched_similar_images", &CmsDiseaseModel::matchedSimilarImages));
  bool operator==(const CmsDiseaseModel&) const = default;
};
static_assert(APIModel<CmsDiseaseModel>);

}  // namespace qb
