// Complete replies of every catalogue record, shared by both faces' tests (the faces use the same keys).
// Every key of every record is present, with values both faces accept.
#pragma once

#include <string>

namespace qb::fixtures::cms {

inline const std::string kCmsTitle = R"({"display_name": "Care", "light_mode_icon_url": "https://i.example/l.png",
  "dark_mode_icon_url": "https://i.example/d.png"})";
inline const std::string kCopyright = R"({"author": "Ana Ruiz", "cert_icons": ["https://i.example/c1.png"],
  "cert_url": "https://c.example", "detail_url": "https://c.example/d", "authorlink": "https://c.example/ana",
  "license": "CC BY 4.0"})";
inline const std::string kCmsStaticUrl = R"({"light_url": "https://s.example/l", "dark_url": "https://s.example/d"})";
inline const std::string kCmsTagValue = R"({"type": 1})";
inline const std::string kCmsTagString = R"({"type": 0, "value": "Full sun \u2600", "key": "Light"})";
inline const std::string kCmsTagColors = R"({"type": 5, "color": 3})";
inline const std::string kTaxonomyName = R"({"uid": "t-1", "type": 6, "taxonomy_type_name": "Species",
  "preferred_name": "Monstera", "latin_name": "Monstera deliciosa", "common_names": ["Swiss cheese plant"]})";
inline const std::string kCmsTaxonomyName = R"({"type": 4, "taxonomy_type": 5, "taxonomy_type_name": "Genus",
  "preferred_name": "Monstera", "latin_name": "Monstera", "common_names": ["Monstera"]})";
inline const std::string kCmsTag = R"({"type": 0, "tag_name": "light", "display_tag_name": "Light", "cms_title": )" +
  kCmsTitle + R"(, "tag_values": [)" + kCmsTagString + ", " + kCmsTagColors + R"(],
  "source_url": "https://src.example", "with_edible_or_medical_info": true})";
inline const std::string kCmsImage = R"({"type": 2, "image_url": "https://i.example/1.jpg", "image_copyright": )" +
  kCopyright + R"(, "tags": [)" + kCmsTag + R"(], "illustration": "drawn", "comment": "leaf",
  "similarity": 0.8700000000000001})";
inline const std::string kCmsMain = R"({"type": 3, "uid": "cn-2", "name": )" + kTaxonomyName +
  R"(, "taxonomy_parent": )" + kTaxonomyName + R"(, "taxonomy_family_parent": )" + kTaxonomyName +
  R"(, "main_image": )" + kCmsImage + "}";
inline const std::string kCmsLayout = R"({"name": "care", "type": 0, "type_set": 2, "tag_names": ["light"],
  "sub_page_tag_names": ["light"], "cms_title": )" + kCmsTitle + "}";
inline const std::string kCmsContent = R"({"layouts": [)" + kCmsLayout + R"(], "tags": [)" + kCmsTag + "]}";
inline const std::string kCmsArticle = R"({"titles": ["Care guide"], "short_title": "Care", "cover_image": )" +
  kCmsImage + R"(, "summary": "How to care", "additional_summary": "More", "author": "Ana Ruiz",
  "url": "https://a.example/1", "dark_url": "https://a.example/1?dark", "tags": [)" + kCmsTag + "]}";
inline const std::string kCmsVideo = R"({"video_classification": 2, "title": "Watering",
  "image_url": "https://v.example/1.jpg", "video_url": "https://v.example/1.mp4"})";
inline const std::string kSimpleCmsDisease = R"({"uid": "d-2", "common_name": "Leaf spot", "cms_layouts": [)" +
  kCmsLayout + R"(], "cms_tags": [)" + kCmsTag + R"(], "cms_static_url": )" + kCmsStaticUrl + "}";
inline const std::string kDiagnoseDetectRegion =
  R"({"region": [0.1, 0.2, 0.5, 0.6000000000000001], "detection_score": 0.93, "strategy_score": 1})";
inline const std::string kDiagnoseDetect = R"({"regions": [)" + kDiagnoseDetectRegion + "]}";
inline const std::string kCmsDisease = R"({"uid": "d-1", "article": )" + kCmsArticle + R"(, "desc": "Fungal",
  "disease_image_url": "https://i.example/d.jpg", "cms_layouts": [)" + kCmsLayout + R"(], "cms_tags": [)" + kCmsTag +
  R"(], "common_name": "Root rot", "symptom_summary": "Yellow leaves", "cms_static_url": )" + kCmsStaticUrl +
  R"(, "disease_level": 2, "related_disease_name": )" + kSimpleCmsDisease + R"(, "diagnose_detect": )" +
  kDiagnoseDetect + R"(, "matched_similar_images": [)" + kCmsImage + "]}";
inline const std::string kSimpleCmsName = R"({"uid": "cn-3", "taxonomy_type_name": "Species",
  "preferred_name": "Pothos", "main_image_url": "https://i.example/p.jpg", "latin_name": "Epipremnum aureum",
  "cms_static_url": )" + kCmsStaticUrl + R"(, "properties": {"toxic": true, "n": [1, 2.5, null]}, "cms_tags": [)" +
  kCmsTag + "]}";
inline const std::string kCmsName = R"({"uid": "cn-1", "name": )" + kTaxonomyName + R"(, "taxonomy_parent": )" +
  kTaxonomyName + R"(, "taxonomy_family_parent": )" + kTaxonomyName + R"(, "taxonomies": [)" + kTaxonomyName +
  R"(], "children": [)" + kSimpleCmsName + R"(], "layouts": [)" + kCmsLayout + R"(], "tags": [)" + kCmsTag +
  R"(], "main_image": )" + kCmsImage + R"(, "matched_similar_images": [)" + kCmsImage + R"(], "confusion": )" +
  kCmsTag + R"(, "disease": )" + kCmsDisease + R"(, "cms_static_url": )" + kCmsStaticUrl + R"(, "videos": [)" +
  kCmsVideo + "]}";
inline const std::string kCmsNameList = R"({"uid": "l-1", "title": "Easy plants", "summary": "Hard to kill",
  "image_url": "https://i.example/l.jpg", "items": [)" + kSimpleCmsName + R"(], "fields": ["a", "b"]})";
inline const std::string kSimpleCmsItemField = R"({"key": "Height", "value": "2 m"})";
inline const std::string kSimpleCmsItem = R"({"uid": "si-1", "main_image_url": "https://i.example/s.jpg",
  "common_name": "Pothos", "latin_name": "Epipremnum aureum", "fields": [)" + kSimpleCmsItemField + "]}";
inline const std::string kPriceTier = R"({"type": 1, "vip_only": 0, "free": 1, "sku": "book.1"})";
inline const std::string kBook = R"({"uid": "b-1", "title": "Houseplants", "sub_title": "A field guide",
  "summary": "Everything indoors", "cover_image_url": "https://i.example/b.jpg", "edition": "2nd",
  "ptbn": "978-0-00-000000-0", "series_name": "Guides", "series_description": "Field guides",
  "price_tiers": [)" + kPriceTier + R"(], "url": "https://b.example/1"})";
inline const std::string kShareUrl = kCmsStaticUrl;

}  // namespace qb::fixtures::cms
