#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPICmsDisease;
class QBAPICmsImage;
class QBAPICmsLayout;
class QBAPICmsStaticUrl;
class QBAPICmsTag;
class QBAPICmsVideo;
class QBAPISimpleCmsName;
class QBAPITaxonomyName;

/// The full description of one content name: its taxonomy, children, page layouts and tags, images,
/// disease description and videos. The main image is optional while the list of matched similar images
/// is required (an empty list satisfies it).
class QBAPICmsName final : public QBAPIModel {
  QB_DICT_MODEL(QBAPICmsName, "CmsName")
  QB_VALUE(uid, Uid)
  QB_MODEL(QBAPITaxonomyName, name, Name)
  QB_MODEL(QBAPITaxonomyName, taxonomyParent, TaxonomyParent)
  QB_MODEL(QBAPITaxonomyName, taxonomyFamilyParent, TaxonomyFamilyParent)
  QB_MODEL_LIST(QBAPITaxonomyName, taxonomies, Taxonomies)
  QB_MODEL_LIST(QBAPISimpleCmsName, children, Children)
  QB_MODEL_LIST(QBAPICmsLayout, layouts, Layouts)
  QB_MODEL_LIST(QBAPICmsTag, tags, Tags)
  QB_MODEL(QBAPICmsImage, mainImage, MainImage)
  QB_MODEL_LIST(QBAPICmsImage, matchedSimilarImages, MatchedSimilarImages)
  QB_MODEL(QBAPICmsTag, confusion, Confusion)
  QB_MODEL(QBAPICmsDisease, disease, Disease)
  QB_MODEL(QBAPICmsStaticUrl, cmsStaticUrl, CmsStaticUrl)
  QB_MODEL_LIST(QBAPICmsVideo, videos, Videos)
  QB_FIELDS(QB_REQUIRED(uid, "uid"), QB_REQUIRED(name, "name"), QB_OPTIONAL(taxonomyParent, "taxonomy_parent"),
            QB_OPTIONAL(taxonomyFamilyParent, "taxonomy_family_parent"), QB_REQUIRED(taxonomies, "taxonomies"),
            QB_OPTIONAL(children, "children"), QB_OPTIONAL(layouts, "layouts"), QB_OPTIONAL(tags, "tags"),
            QB_OPTIONAL(mainImage, "main_image"), QB_REQUIRED(matchedSimilarImages, "matched_similar_images"),
            QB_OPTIONAL(confusion, "confusion"), QB_OPTIONAL(disease, "disease"),
            QB_OPTIONAL(cmsStaticUrl, "cms_static_url"), QB_OPTIONAL(videos, "videos"))
};

}  // namespace qb
