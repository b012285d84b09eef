#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsArticle;
class QBAPICmsImage;
class QBAPICmsLayout;
class QBAPICmsStaticUrl;
class QBAPICmsTag;
class QBAPIDiagnoseDetect;
class QBAPISimpleCmsDisease;

/// A disease description attached to a content name. Its own "uid" is optional. A missing
/// "disease_level" reads as 0 (healthy) and, like every integer, is written back.
class QBAPICmsDisease final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsDisease, "CmsDisease")
  QB_VALUE(uid, Uid)
  QB_MODEL(QBAPICmsArticle, article, Article)
  QB_VALUE(desc, Desc)
  QB_VALUE(diseaseImageUrl, DiseaseImageUrl)
  QB_MODEL_LIST(QBAPICmsLayout, cmsLayouts, CmsLayouts)
  QB_MODEL_LIST(QBAPICmsTag, cmsTags, CmsTags)
  QB_VALUE(commonName, CommonName)
  QB_VALUE(symptomSummary, SymptomSummary)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_INTEGER(diseaseLevel, DiseaseLevel)
  QB_MODEL(QBAPISimpleCmsDisease, relatedDiseaseName, RelatedDiseaseName)
  QB_MODEL(QBAPIDiagnoseDetect, diagnoseDetect, DiagnoseDetect)
  QB_MODEL_LIST(QBAPICmsImage, matchedSimilarImages, MatchedSimilarImages)
  QB_FIELDS(QB_OPTIONAL(uid, "uid"), QB_REQUIRED(article, "article"), QB_OPTIONAL(desc, "desc"),
            QB_OPTIONAL(diseaseImageUrl, "disease_image_url"), QB_OPTIONAL(cmsLayouts, "cms_layouts"),
            QB_OPTIONAL(cmsTags, "cms_tags"), QB_OPTIONAL(commonName, "common_name"),
            QB_OPTIONAL(symptomSummary, "symptom_summary"), QB_OPTIONAL(cmsStaticUrl, "cms_static_url"),
            QB_OPTIONAL(diseaseLevel, "disease_level"), QB_OPTIONAL(relatedDiseaseName, "related_disease_name"),
            QB_OPTIONAL(diagnoseDetect, "diagnose_detect"), QB_OPTIONAL(matchedSimilarImages, "matched_similar_images"))
};

}  // namespace qb
