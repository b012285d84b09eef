// Reading the records from a parsed DOM, the way a user of a DOM library reads them: look each member
// up by key, check its kind, copy it out. Written once over an adapter `Dom` per library that offers
//   Value; find(object, key) -> const Value* (nullptr when absent; throws when not an object);
//   isNull; readString(v, std::string&); readInt64; readBool; readDouble; size(array);
//   forEachElement(array, f(const Value&)); forEachMember(object, f(std::string_view, const Value&));
//   toJson(v) -> qb::JsonValue.
#pragma once

#include "peers/Peers.hpp"

namespace qb::bench::peers {

template <class Dom>
struct DomReader {
  using V = typename Dom::Value;

  static void read(const V& v, std::string& out) { Dom::readString(v, out); }
  static void read(const V& v, std::int64_t& out) { out = Dom::readInt64(v); }
  static void read(const V& v, bool& out) { out = Dom::readBool(v); }
  static void read(const V& v, double& out) { out = Dom::readDouble(v); }
  static void read(const V& v, Date& out) {
    auto date = dateFromNumber(Dom::readDouble(v), DateStrategy::secondsSince1970);
    if (!date) fail("not a date");
    out = *date;
  }
  template <APIEnumrable E>
  static void read(const V& v, E& out) {
    out = enumFromDecoded<E>(Dom::readInt64(v));
  }
  static void read(const V& v, AnyCodable& out) { out.value = Dom::toJson(v); }
  template <class T>
  static void read(const V& v, std::vector<T>& out) {
    out.clear();
    out.reserve(Dom::size(v));
    Dom::forEachElement(v, [&](const V& element) { read(element, out.emplace_back()); });
  }
  static void read(const V& v, std::map<std::string, AnyCodable>& out) {
    out.clear();
    Dom::forEachMember(v, [&](std::string_view key, const V& element) { read(element, out[std::string(key)]); });
  }

  // A member: a required one must be present and not null; an optional one may be either.
  template <class T>
  static void member(const V& object, std::string_view key, T& out) {
    const V* v = Dom::find(object, key);
    if constexpr (IsOptional<T>::value) {
      if (!v || Dom::isNull(*v)) {
        out.reset();
      } else {
        read(*v, out.emplace());
      }
    } else {
      if (!v || Dom::isNull(*v)) fail(key);
      read(*v, out);
    }
  }

  static void read(const V& v, FaqModel& out) {
    member(v, "title", out.title);
    member(v, "content", out.content);
    member(v, "faq_type", out.faqType);
  }
  static void read(const V& v, UserGetFaqResponse& out) { member(v, "faqs", out.faqs); }
  static void read(const V& v, UserModel& out) {
    member(v, "user_id", out.userId);
    member(v, "uuid", out.uuid);
    member(v, "nickname", out.nickname);
    member(v, "avatar_url", out.avatarUrl);
    member(v, "gender", out.gender);
    member(v, "email", out.email);
    member(v, "created_at", out.createdAt);
    member(v, "guest_user", out.guestUser);
    member(v, "vip", out.vip);
    member(v, "auto_renew_status", out.autoRenewStatus);
    member(v, "expert_consultation_count", out.expertConsultationCount);
    member(v, "app_init_version", out.appInitVersion);
    member(v, "properties", out.properties);
  }
  static void read(const V& v, UserList& out) { member(v, "users", out.users); }
  static void read(const V& v, UserAdditionalDataModel& out) {
    member(v, "exist_user", out.existUser);
    member(v, "today_user", out.todayUser);
    member(v, "is_vip_in_history", out.isVipInHistory);
    member(v, "email_notification_enabled", out.emailNotificationEnabled);
    member(v, "grows_price_label", out.growsPriceLabel);
  }
  static void read(const V& v, AutoUpdateModel& out) {
    member(v, "has_update", out.hasUpdate);
    member(v, "force_update", out.forceUpdate);
  }
  static void read(const V& v, LegalConfigModel& out) {
    member(v, "agreement_url", out.agreementUrl);
    member(v, "agreement_version", out.agreementVersion);
    member(v, "next_agreement_url", out.nextAgreementUrl);
    member(v, "next_agreement_version", out.nextAgreementVersion);
    member(v, "next_agreement_available_at", out.nextAgreementAvailableAt);
    member(v, "third_party_notices_url", out.thirdPartyNoticesUrl);
    member(v, "privacy_policy_url", out.privacyPolicyUrl);
    member(v, "data_management_url", out.dataManagementUrl);
    member(v, "privacy_policy_version", out.privacyPolicyVersion);
  }
  static void read(const V& v, ClientConfigModel& out) {
    member(v, "auto_update", out.autoUpdate);
    member(v, "expert_default_count", out.expertDefaultCount);
    member(v, "share_app_url", out.shareAppUrl);
    member(v, "timestamp", out.timestamp);
    member(v, "legal_config", out.legalConfig);
  }
  static void read(const V& v, UserGetConfigResponse& out) {
    member(v, "config", out.config);
    member(v, "other_configs", out.otherConfigs);
  }
  static void read(const V& v, UserInitialiseResponse& out) {
    member(v, "user", out.user);
    member(v, "user_additional_data", out.userAdditionalData);
    member(v, "access_token", out.accessToken);
    member(v, "config", out.config);
    member(v, "other_configs", out.otherConfigs);
    member(v, "app_server_time", out.appServerTime);
    member(v, "country", out.country);
  }

  // The content catalogue.
  static void read(const V& v, TaxonomyNameModel& out) {
    member(v, "uid", out.uid);
    member(v, "type", out.type);
    member(v, "taxonomy_type_name", out.taxonomyTypeName);
    member(v, "preferred_name", out.preferredName);
    member(v, "latin_name", out.latinName);
    member(v, "common_names", out.commonNames);
  }
  static void read(const V& v, CmsTitleModel& out) {
    member(v, "display_name", out.displayName);
    member(v, "light_mode_icon_url", out.lightModeIconUrl);
    member(v, "dark_mode_icon_url", out.darkModeIconUrl);
  }
  static void read(const V& v, CopyrightModel& out) {
    member(v, "author", out.author);
    member(v, "cert_icons", out.certIcons);
    member(v, "cert_url", out.certUrl);
    member(v, "detail_url", out.detailUrl);
    member(v, "authorlink", out.authorlink);
    member(v, "license", out.license);
  }
  static void read(const V& v, CmsStaticUrlModel& out) {
    member(v, "light_url", out.lightUrl);
    member(v, "dark_url", out.darkUrl);
  }
  static void read(const V& v, CmsTagModel& out) {
    member(v, "type", out.type);
    member(v, "tag_name", out.tagName);
    member(v, "display_tag_name", out.displayTagName);
    member(v, "cms_title", out.cmsTitle);
    member(v, "tag_values", out.tagValues);
    member(v, "source_url", out.sourceUrl);
    member(v, "with_edible_or_medical_info", out.withEdibleOrMedicalInfo);
  }
  static void read(const V& v, CmsImageModel& out) {
    member(v, "type", out.type);
    member(v, "image_url", out.imageUrl);
    member(v, "image_copyright", out.imageCopyright);
    member(v, "tags", out.tags);
    member(v, "comment", out.comment);
    member(v, "similarity", out.similarity);
  }
  static void read(const V& v, CmsLayoutModel& out) {
    member(v, "name", out.name);
    member(v, "type", out.type);
    member(v, "type_set", out.typeSet);
    member(v, "tag_names", out.tagNames);
    member(v, "sub_page_tag_names", out.subPageTagNames);
    member(v, "cms_title", out.cmsTitle);
  }
  static void read(const V& v, SimpleCmsNameModel& out) {
    member(v, "uid", out.uid);
    member(v, "taxonomy_type_name", out.taxonomyTypeName);
    member(v, "preferred_name", out.preferredName);
    member(v, "main_image_url", out.mainImageUrl);
    member(v, "latin_name", out.latinName);
    member(v, "cms_static_url", out.cmsStaticUrl);
    member(v, "properties", out.properties);
    member(v, "cms_tags", out.cmsTags);
  }
  static void read(const V& v, CmsVideoModel& out) {
    member(v, "video_classification", out.videoClassification);
    member(v, "title", out.title);
    member(v, "image_url", out.imageUrl);
    member(v, "video_url", out.videoUrl);
  }
  static void read(const V& v, CmsArticleModel& out) {
    member(v, "titles", out.titles);
    member(v, "short_title", out.shortTitle);
    member(v, "cover_image", out.coverImage);
    member(v, "summary", out.summary);
    member(v, "additional_summary", out.additionalSummary);
    member(v, "author", out.author);
    member(v, "url", out.url);
    member(v, "dark_url", out.darkUrl);
    member(v, "tags", out.tags);
  }
  static void read(const V& v, SimpleCmsDiseaseModel& out) {
    member(v, "uid", out.uid);
    member(v, "common_name", out.commonName);
    member(v, "cms_layouts", out.cmsLayouts);
    member(v, "cms_tags", out.cmsTags);
    member(v, "cms_static_url", out.cmsStaticUrl);
  }
  static void read(const V& v, DiagnoseDetectRegionModel& out) {
    member(v, "region", out.region);
    member(v, "detection_score", out.detectionScore);
    member(v, "strategy_score", out.strategyScore);
  }
  static void read(const V& v, DiagnoseDetectModel& out) { member(v, "regions", out.regions); }
  static void read(const V& v, CmsDiseaseModel& out) {
    member(v, "uid", out.uid);
    member(v, "article", out.article);
    member(v, "desc", out.desc);
    member(v, "disease_image_url", out.diseaseImageUrl);
    member(v, "cms_layouts", out.cmsLayouts);
    member(v, "cms_tags", out.cmsTags);
    member(v, "common_name", out.commonName);
    member(v, "symptom_summary", out.symptomSummary);
    member(v, "cms_static_url", out.cmsStaticUrl);
    member(v, "disease_level", out.diseaseLevel);
    member(v, "related_disease_name", out.relatedDiseaseName);
    member(v, "diagnose_detect", out.diagnoseDetect);
    member(v, "matched_similar_images", out.matchedSimilarImages);
  }
  static void read(const V& v, CmsNameModel& out) {
    member(v, "uid", out.uid);
    member(v, "name", out.name);
    member(v, "taxonomy_parent", out.taxonomyParent);
    member(v, "taxonomy_family_parent", out.taxonomyFamilyParent);
    member(v, "taxonomies", out.taxonomies);
    member(v, "children", out.children);
    member(v, "layouts", out.layouts);
    member(v, "tags", out.tags);
    member(v, "main_image", out.mainImage);
    member(v, "matched_similar_images", out.matchedSimilarImages);
    member(v, "confusion", out.confusion);
    member(v, "disease", out.disease);
    member(v, "cms_static_url", out.cmsStaticUrl);
    member(v, "videos", out.videos);
  }
  static void read(const V& v, CmsGetCmsNameResponse& out) { member(v, "cms_name", out.cmsName); }
  static void read(const V& v, CmsGetCmsNameListResponse& out) { member(v, "cms_name_list", out.cmsNameList); }

  // The item collection.
  static void read(const V& v, ItemImageModel& out) {
    member(v, "icon_url", out.iconUrl);
    member(v, "thumbnail_url", out.thumbnailUrl);
    member(v, "image_url", out.imageUrl);
    member(v, "original_url", out.originalUrl);
    member(v, "signature_image_url", out.signatureImageUrl);
  }
  static void read(const V& v, SimpleItemModel& out) {
    member(v, "item_id", out.itemId);
    member(v, "item_image", out.itemImage);
    member(v, "shoot_at", out.shootAt);
    member(v, "name", out.name);
    member(v, "cms_name_uid", out.cmsNameUid);
    member(v, "disease_uid", out.diseaseUid);
    member(v, "latin_name", out.latinName);
    member(v, "custom_name", out.customName);
    member(v, "custom_note", out.customNote);
    member(v, "properties", out.properties);
    member(v, "cms_cache_business_fields", out.cmsCacheBusinessFields);
    member(v, "lng", out.lng);
    member(v, "lat", out.lat);
  }
  static void read(const V& v, ItemListMyCollectionsResponse& out) { member(v, "items", out.items); }

  template <class T>
  static T decode(const V& root) {
    T out{};
    read(root, out);
    return out;
  }
};

}  // namespace qb::bench::peers
