// simdjson On-Demand by hand: the parser's ceiling (a walk that builds nothing) and, per record, the
// decoder an engineer writes for that one record: iterate the object's fields and dispatch on the key
// with an `if` chain, reading each value with simdjson's own accessors.
#include <simdjson.h>

#include "Checksum.hpp"
#include "peers/Peers.hpp"

namespace qb::bench::peers {
namespace {

using simdjson::ondemand::field;
using simdjson::ondemand::value;

// The thread's parser over a padded copy of `json`, as qb::JSONDecoder keeps them.
simdjson::ondemand::document& open(std::string_view json) {
  thread_local simdjson::ondemand::parser parser;
  thread_local std::string buffer;
  thread_local simdjson::ondemand::document document;
  buffer.assign(json);
  buffer.append(simdjson::SIMDJSON_PADDING, '\0');
  document = parser.iterate(simdjson::padded_string_view(buffer.data(), json.size(), buffer.size()));
  return document;
}

void expectEnd(simdjson::ondemand::document& document) {
  const char* rest = nullptr;
  if (document.current_location().get(rest) != simdjson::OUT_OF_BOUNDS) fail("trailing content");
}

std::uint64_t walk(value v) {
  const simdjson::ondemand::json_type type = v.type();
  switch (type) {
    case simdjson::ondemand::json_type::object: {
      std::uint64_t sum = 0;
      for (field f : v.get_object()) {
        const std::string_view key = f.unescaped_key();
        sum += hashMember(key, walk(f.value()));
      }
      return hashScalar(Tag::object, sum);
    }
    case simdjson::ondemand::json_type::array: {
      Checksum c;
      c.mix(static_cast<std::uint64_t>(Tag::array));
      for (value element : v.get_array()) c.mix(walk(element));
      return c.value();
    }
    case simdjson::ondemand::json_type::string: return hashString(v.get_string());
    case simdjson::ondemand::json_type::number: {
      simdjson::ondemand::number n = v.get_number();
      switch (n.get_number_type()) {
        case simdjson::ondemand::number_type::signed_integer: return hashInteger(n.get_int64());
        case simdjson::ondemand::number_type::unsigned_integer: return hashUnsigned(n.get_uint64());
        case simdjson::ondemand::number_type::floating_point_number: return hashReal(n.get_double());
      }
      fail("bad number");
    }
    case simdjson::ondemand::json_type::boolean: return hashScalar(Tag::boolean, bool(v.get_bool()));
    case simdjson::ondemand::json_type::null:
      if (!v.is_null()) fail("bad literal");
      return hashScalar(Tag::null);
  }
  fail("bad value");
}

// --- Values -----------------------------------------------------------------------------------------

void read(value v, std::string& out) {
  const std::string_view s = v.get_string();
  out.assign(s.data(), s.size());
}
void read(value v, std::int64_t& out) { out = v.get_int64(); }
void read(value v, bool& out) { out = v.get_bool(); }
void read(value v, double& out) { out = v.get_double(); }
void read(value v, Date& out) {
  auto date = dateFromNumber(v.get_double(), DateStrategy::secondsSince1970);
  if (!date) fail("not a date");
  out = *date;
}
template <APIEnumrable E>
void read(value v, E& out) {
  out = enumFromDecoded<E>(v.get_int64());
}
JsonValue toJson(value v) {
  const simdjson::ondemand::json_type type = v.type();
  switch (type) {
    case simdjson::ondemand::json_type::object: {
      JsonMap map;
      for (field f : v.get_object()) {
        const std::string_view key = f.unescaped_key();
        map.insert_or_assign(key, toJson(f.value()));
      }
      return map;
    }
    case simdjson::ondemand::json_type::array: {
      JsonList list;
      for (value element : v.get_array()) list.push_back(toJson(element));
      return list;
    }
    case simdjson::ondemand::json_type::string: return JsonValue(std::string_view(v.get_string()));
    case simdjson::ondemand::json_type::number: {
      simdjson::ondemand::number n = v.get_number();
      switch (n.get_number_type()) {
        case simdjson::ondemand::number_type::signed_integer: return n.get_int64();
        case simdjson::ondemand::number_type::unsigned_integer: return n.get_uint64();
        case simdjson::ondemand::number_type::floating_point_number: return n.get_double();
      }
      fail("bad number");
    }
    case simdjson::ondemand::json_type::boolean: return bool(v.get_bool());
    case simdjson::ondemand::json_type::null:
      if (!v.is_null()) fail("bad literal");
      return nullptr;
  }
  fail("bad value");
}
void read(value v, std::map<std::string, AnyCodable>& out) {
  out.clear();
  for (field f : v.get_object()) {
    std::string key(std::string_view(f.unescaped_key()));
    out[std::move(key)].value = toJson(f.value());
  }
}
// The records, defined below; declared here so that optional and list members of them resolve.
void read(value v, TaxonomyNameModel& out);
void read(value v, CmsTitleModel& out);
void read(value v, CopyrightModel& out);
void read(value v, CmsStaticUrlModel& out);
void read(value v, CmsTagModel& out);
void read(value v, CmsImageModel& out);
void read(value v, CmsLayoutModel& out);
void read(value v, SimpleCmsNameModel& out);
void read(value v, CmsVideoModel& out);
void read(value v, CmsArticleModel& out);
void read(value v, SimpleCmsDiseaseModel& out);
void read(value v, DiagnoseDetectRegionModel& out);
void read(value v, DiagnoseDetectModel& out);
void read(value v, CmsDiseaseModel& out);
void read(value v, CmsNameModel& out);
void read(value v, ItemImageModel& out);
void read(value v, SimpleItemModel& out);

template <class T>
void read(value v, std::vector<T>& out);
template <class T>
void read(value v, std::optional<T>& out) {
  if (v.is_null()) {
    out.reset();
  } else {
    read(v, out.emplace());
  }
}

// --- Records ------------------------------------------------------------------------------------------

void read(value v, FaqModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "title") {
      read(f.value(), out.title), seen |= 1;
    } else if (key == "content") {
      read(f.value(), out.content), seen |= 2;
    } else if (key == "faq_type") {
      read(f.value(), out.faqType), seen |= 4;
    }
  }
  if (seen != 7) fail("Faq: missing member");
}

void read(value v, UserModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "user_id") {
      read(f.value(), out.userId), seen |= 1;
    } else if (key == "uuid") {
      read(f.value(), out.uuid), seen |= 2;
    } else if (key == "nickname") {
      read(f.value(), out.nickname);
    } else if (key == "avatar_url") {
      read(f.value(), out.avatarUrl);
    } else if (key == "gender") {
      read(f.value(), out.gender);
    } else if (key == "email") {
      read(f.value(), out.email);
    } else if (key == "created_at") {
      read(f.value(), out.createdAt), seen |= 4;
    } else if (key == "guest_user") {
      read(f.value(), out.guestUser), seen |= 8;
    } else if (key == "vip") {
      read(f.value(), out.vip), seen |= 16;
    } else if (key == "auto_renew_status") {
      read(f.value(), out.autoRenewStatus), seen |= 32;
    } else if (key == "expert_consultation_count") {
      read(f.value(), out.expertConsultationCount), seen |= 64;
    } else if (key == "app_init_version") {
      read(f.value(), out.appInitVersion);
    } else if (key == "properties") {
      read(f.value(), out.properties);
    }
  }
  if (seen != 127) fail("User: missing member");
}

void read(value v, UserAdditionalDataModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "exist_user") {
      read(f.value(), out.existUser), seen |= 1;
    } else if (key == "today_user") {
      read(f.value(), out.todayUser), seen |= 2;
    } else if (key == "is_vip_in_history") {
      read(f.value(), out.isVipInHistory), seen |= 4;
    } else if (key == "email_notification_enabled") {
      read(f.value(), out.emailNotificationEnabled);
    } else if (key == "grows_price_label") {
      read(f.value(), out.growsPriceLabel);
    }
  }
  if (seen != 7) fail("UserAdditionalData: missing member");
}

void read(value v, AutoUpdateModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "has_update") {
      read(f.value(), out.hasUpdate), seen |= 1;
    } else if (key == "force_update") {
      read(f.value(), out.forceUpdate), seen |= 2;
    }
  }
  if (seen != 3) fail("AutoUpdate: missing member");
}

void read(value v, LegalConfigModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "agreement_url") {
      read(f.value(), out.agreementUrl);
    } else if (key == "agreement_version") {
      read(f.value(), out.agreementVersion), seen |= 1;
    } else if (key == "next_agreement_url") {
      read(f.value(), out.nextAgreementUrl);
    } else if (key == "next_agreement_version") {
      read(f.value(), out.nextAgreementVersion);
    } else if (key == "next_agreement_available_at") {
      read(f.value(), out.nextAgreementAvailableAt);
    } else if (key == "third_party_notices_url") {
      read(f.value(), out.thirdPartyNoticesUrl);
    } else if (key == "privacy_policy_url") {
      read(f.value(), out.privacyPolicyUrl);
    } else if (key == "data_management_url") {
      read(f.value(), out.dataManagementUrl);
    } else if (key == "privacy_policy_version") {
      read(f.value(), out.privacyPolicyVersion), seen |= 2;
    }
  }
  if (seen != 3) fail("LegalConfig: missing member");
}

void read(value v, ClientConfigModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "auto_update") {
      read(f.value(), out.autoUpdate), seen |= 1;
    } else if (key == "expert_default_count") {
      read(f.value(), out.expertDefaultCount), seen |= 2;
    } else if (key == "share_app_url") {
      read(f.value(), out.shareAppUrl);
    } else if (key == "timestamp") {
      read(f.value(), out.timestamp), seen |= 4;
    } else if (key == "legal_config") {
      read(f.value(), out.legalConfig), seen |= 8;
    }
  }
  if (seen != 15) fail("ClientConfig: missing member");
}

void read(value v, UserGetFaqResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "faqs") read(f.value(), out.faqs), seen |= 1;
  }
  if (seen != 1) fail("GetFaq: missing member");
}

void read(value v, UserList& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "users") read(f.value(), out.users), seen |= 1;
  }
  if (seen != 1) fail("UserList: missing member");
}

void read(value v, UserGetConfigResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "config") {
      read(f.value(), out.config), seen |= 1;
    } else if (key == "other_configs") {
      read(f.value(), out.otherConfigs), seen |= 2;
    }
  }
  if (seen != 3) fail("GetConfig: missing member");
}

void read(value v, UserInitialiseResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "user") {
      read(f.value(), out.user), seen |= 1;
    } else if (key == "user_additional_data") {
      read(f.value(), out.userAdditionalData), seen |= 2;
    } else if (key == "access_token") {
      read(f.value(), out.accessToken);
    } else if (key == "config") {
      read(f.value(), out.config), seen |= 4;
    } else if (key == "other_configs") {
      read(f.value(), out.otherConfigs), seen |= 8;
    } else if (key == "app_server_time") {
      read(f.value(), out.appServerTime), seen |= 16;
    } else if (key == "country") {
      read(f.value(), out.country);
    }
  }
  if (seen != 31) fail("Initialise: missing member");
}

// --- Content catalogue --------------------------------------------------------------------------------

void read(value v, TaxonomyNameModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "uid") {
      read(f.value(), out.uid), seen |= 1;
    } else if (key == "type") {
      read(f.value(), out.type), seen |= 2;
    } else if (key == "taxonomy_type_name") {
      read(f.value(), out.taxonomyTypeName), seen |= 4;
    } else if (key == "preferred_name") {
      read(f.value(), out.preferredName), seen |= 8;
    } else if (key == "latin_name") {
      read(f.value(), out.latinName), seen |= 16;
    } else if (key == "common_names") {
      read(f.value(), out.commonNames);
    }
  }
  if (seen != 31) fail("TaxonomyName: missing member");
}

void read(value v, CmsTitleModel& out) {
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "display_name") {
      read(f.value(), out.displayName);
    } else if (key == "light_mode_icon_url") {
      read(f.value(), out.lightModeIconUrl);
    } else if (key == "dark_mode_icon_url") {
      read(f.value(), out.darkModeIconUrl);
    }
  }
}

void read(value v, CopyrightModel& out) {
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "author") {
      read(f.value(), out.author);
    } else if (key == "cert_icons") {
      read(f.value(), out.certIcons);
    } else if (key == "cert_url") {
      read(f.value(), out.certUrl);
    } else if (key == "detail_url") {
      read(f.value(), out.detailUrl);
    } else if (key == "authorlink") {
      read(f.value(), out.authorlink);
    } else if (key == "license") {
      read(f.value(), out.license);
    }
  }
}

void read(value v, CmsStaticUrlModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "light_url") {
      read(f.value(), out.lightUrl), seen |= 1;
    } else if (key == "dark_url") {
      read(f.value(), out.darkUrl), seen |= 2;
    }
  }
  if (seen != 3) fail("CmsStaticUrl: missing member");
}

void read(value v, CmsTagModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "type") {
      read(f.value(), out.type), seen |= 1;
    } else if (key == "tag_name") {
      read(f.value(), out.tagName), seen |= 2;
    } else if (key == "display_tag_name") {
      read(f.value(), out.displayTagName);
    } else if (key == "cms_title") {
      read(f.value(), out.cmsTitle);
    } else if (key == "tag_values") {
      read(f.value(), out.tagValues), seen |= 4;
    } else if (key == "source_url") {
      read(f.value(), out.sourceUrl);
    } else if (key == "with_edible_or_medical_info") {
      read(f.value(), out.withEdibleOrMedicalInfo);
    }
  }
  if (seen != 7) fail("CmsTag: missing member");
}

void read(value v, CmsImageModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "type") {
      read(f.value(), out.type), seen |= 1;
    } else if (key == "image_url") {
      read(f.value(), out.imageUrl), seen |= 2;
    } else if (key == "image_copyright") {
      read(f.value(), out.imageCopyright);
    } else if (key == "tags") {
      read(f.value(), out.tags);
    } else if (key == "comment") {
      read(f.value(), out.comment);
    } else if (key == "similarity") {
      read(f.value(), out.similarity);
    }
  }
  if (seen != 3) fail("CmsImage: missing member");
}

void read(value v, CmsLayoutModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "name") {
      read(f.value(), out.name), seen |= 1;
    } else if (key == "type") {
      read(f.value(), out.type), seen |= 2;
    } else if (key == "type_set") {
      read(f.value(), out.typeSet), seen |= 4;
    } else if (key == "tag_names") {
      read(f.value(), out.tagNames);
    } else if (key == "sub_page_tag_names") {
      read(f.value(), out.subPageTagNames);
    } else if (key == "cms_title") {
      read(f.value(), out.cmsTitle);
    }
  }
  if (seen != 7) fail("CmsLayout: missing member");
}

void read(value v, SimpleCmsNameModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "uid") {
      read(f.value(), out.uid), seen |= 1;
    } else if (key == "taxonomy_type_name") {
      read(f.value(), out.taxonomyTypeName);
    } else if (key == "preferred_name") {
      read(f.value(), out.preferredName);
    } else if (key == "main_image_url") {
      read(f.value(), out.mainImageUrl);
    } else if (key == "latin_name") {
      read(f.value(), out.latinName);
    } else if (key == "cms_static_url") {
      read(f.value(), out.cmsStaticUrl);
    } else if (key == "properties") {
      read(f.value(), out.properties);
    } else if (key == "cms_tags") {
      read(f.value(), out.cmsTags);
    }
  }
  if (seen != 1) fail("SimpleCmsName: missing member");
}

void read(value v, CmsVideoModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "video_classification") {
      read(f.value(), out.videoClassification), seen |= 1;
    } else if (key == "title") {
      read(f.value(), out.title), seen |= 2;
    } else if (key == "image_url") {
      read(f.value(), out.imageUrl), seen |= 4;
    } else if (key == "video_url") {
      read(f.value(), out.videoUrl), seen |= 8;
    }
  }
  if (seen != 15) fail("CmsVideo: missing member");
}

void read(value v, CmsArticleModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "titles") {
      read(f.value(), out.titles);
    } else if (key == "short_title") {
      read(f.value(), out.shortTitle);
    } else if (key == "cover_image") {
      read(f.value(), out.coverImage);
    } else if (key == "summary") {
      read(f.value(), out.summary);
    } else if (key == "additional_summary") {
      read(f.value(), out.additionalSummary);
    } else if (key == "author") {
      read(f.value(), out.author);
    } else if (key == "url") {
      read(f.value(), out.url), seen |= 1;
    } else if (key == "dark_url") {
      read(f.value(), out.darkUrl);
    } else if (key == "tags") {
      read(f.value(), out.tags), seen |= 2;
    }
  }
  if (seen != 3) fail("CmsArticle: missing member");
}

void read(value v, SimpleCmsDiseaseModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "uid") {
      read(f.value(), out.uid), seen |= 1;
    } else if (key == "common_name") {
      read(f.value(), out.commonName);
    } else if (key == "cms_layouts") {
      read(f.value(), out.cmsLayouts);
    } else if (key == "cms_tags") {
      read(f.value(), out.cmsTags);
    } else if (key == "cms_static_url") {
      read(f.value(), out.cmsStaticUrl);
    }
  }
  if (seen != 1) fail("SimpleCmsDisease: missing member");
}

void read(value v, DiagnoseDetectRegionModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "region") {
      read(f.value(), out.region), seen |= 1;
    } else if (key == "detection_score") {
      read(f.value(), out.detectionScore), seen |= 2;
    } else if (key == "strategy_score") {
      read(f.value(), out.strategyScore), seen |= 4;
    }
  }
  if (seen != 7) fail("DiagnoseDetectRegion: missing member");
}

void read(value v, DiagnoseDetectModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "regions") read(f.value(), out.regions), seen |= 1;
  }
  if (seen != 1) fail("DiagnoseDetect: missing member");
}

void read(value v, CmsDiseaseModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "uid") {
      read(f.value(), out.uid);
    } else if (key == "article") {
      read(f.value(), out.article), seen |= 1;
    } else if (key == "desc") {
      read(f.value(), out.desc);
    } else if (key == "disease_image_url") {
      read(f.value(), out.diseaseImageUrl);
    } else if (key == "cms_layouts") {
      read(f.value(), out.cmsLayouts);
    } else if (key == "cms_tags") {
      read(f.value(), out.cmsTags);
    } else if (key == "common_name") {
      read(f.value(), out.commonName);
    } else if (key == "symptom_summary") {
      read(f.value(), out.symptomSummary);
    } else if (key == "cms_static_url") {
      read(f.value(), out.cmsStaticUrl);
    } else if (key == "disease_level") {
      read(f.value(), out.diseaseLevel);
    } else if (key == "related_disease_name") {
      read(f.value(), out.relatedDiseaseName);
    } else if (key == "diagnose_detect") {
      read(f.value(), out.diagnoseDetect);
    } else if (key == "matched_similar_images") {
      read(f.value(), out.matchedSimilarImages);
    }
  }
  if (seen != 1) fail("CmsDisease: missing member");
}

void read(value v, CmsNameModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "uid") {
      read(f.value(), out.uid), seen |= 1;
    } else if (key == "name") {
      read(f.value(), out.name), seen |= 2;
    } else if (key == "taxonomy_parent") {
      read(f.value(), out.taxonomyParent);
    } else if (key == "taxonomy_family_parent") {
      read(f.value(), out.taxonomyFamilyParent);
    } else if (key == "taxonomies") {
      read(f.value(), out.taxonomies), seen |= 4;
    } else if (key == "children") {
      read(f.value(), out.children);
    } else if (key == "layouts") {
      read(f.value(), out.layouts);
    } else if (key == "tags") {
      read(f.value(), out.tags);
    } else if (key == "main_image") {
      read(f.value(), out.mainImage);
    } else if (key == "matched_similar_images") {
      read(f.value(), out.matchedSimilarImages), seen |= 8;
    } else if (key == "confusion") {
      read(f.value(), out.confusion);
    } else if (key == "disease") {
      read(f.value(), out.disease);
    } else if (key == "cms_static_url") {
      read(f.value(), out.cmsStaticUrl);
    } else if (key == "videos") {
      read(f.value(), out.videos);
    }
  }
  if (seen != 15) fail("CmsName: missing member");
}

void read(value v, CmsGetCmsNameResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "cms_name") read(f.value(), out.cmsName), seen |= 1;
  }
  if (seen != 1) fail("GetCmsName: missing member");
}

void read(value v, CmsGetCmsNameListResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "cms_name_list") read(f.value(), out.cmsNameList), seen |= 1;
  }
  if (seen != 1) fail("GetCmsNameList: missing member");
}

// --- Item collection ----------------------------------------------------------------------------------

void read(value v, ItemImageModel& out) {
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "icon_url") {
      read(f.value(), out.iconUrl);
    } else if (key == "thumbnail_url") {
      read(f.value(), out.thumbnailUrl);
    } else if (key == "image_url") {
      read(f.value(), out.imageUrl);
    } else if (key == "original_url") {
      read(f.value(), out.originalUrl);
    } else if (key == "signature_image_url") {
      read(f.value(), out.signatureImageUrl);
    }
  }
}

void read(value v, SimpleItemModel& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    const auto key = f.key();
    if (key == "item_id") {
      read(f.value(), out.itemId), seen |= 1;
    } else if (key == "item_image") {
      read(f.value(), out.itemImage), seen |= 2;
    } else if (key == "shoot_at") {
      read(f.value(), out.shootAt), seen |= 4;
    } else if (key == "name") {
      read(f.value(), out.name), seen |= 8;
    } else if (key == "cms_name_uid") {
      read(f.value(), out.cmsNameUid);
    } else if (key == "disease_uid") {
      read(f.value(), out.diseaseUid);
    } else if (key == "latin_name") {
      read(f.value(), out.latinName);
    } else if (key == "custom_name") {
      read(f.value(), out.customName);
    } else if (key == "custom_note") {
      read(f.value(), out.customNote);
    } else if (key == "properties") {
      read(f.value(), out.properties);
    } else if (key == "cms_cache_business_fields") {
      read(f.value(), out.cmsCacheBusinessFields);
    } else if (key == "lng") {
      read(f.value(), out.lng);
    } else if (key == "lat") {
      read(f.value(), out.lat);
    }
  }
  if (seen != 15) fail("SimpleItem: missing member");
}

void read(value v, ItemListMyCollectionsResponse& out) {
  unsigned seen = 0;
  for (field f : v.get_object()) {
    if (f.key() == "items") read(f.value(), out.items), seen |= 1;
  }
  if (seen != 1) fail("ListMyCollections: missing member");
}

template <class T>
void read(value v, std::vector<T>& out) {
  out.clear();
  for (value element : v.get_array()) read(element, out.emplace_back());
}

}  // namespace

std::uint64_t simdjsonWalk(std::string_view json) {
  simdjson::ondemand::document& document = open(json);
  const std::uint64_t sum = walk(document.get_value());
  expectEnd(document);
  return sum;
}

template <class T>
T decodeHandWritten(std::string_view json) {
  simdjson::ondemand::document& document = open(json);
  T out{};
  read(document.get_value(), out);
  expectEnd(document);
  return out;
}
QB_BENCH_PEER_DECODERS(decodeHandWritten)

}  // namespace qb::bench::peers
