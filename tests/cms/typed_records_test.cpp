// Every Typed-face record of the content catalogue and share domains: round trips, required and optional
// members, enumeration failures, coding paths of nested failures and the keys only this face reads.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/enums/CmsEnums.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>
#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/share/typed/ShareTyped.hpp>
#include <functional>
#include <limits>
#include <optional>

#include "cms/Fixtures.hpp"
#include "typed_helpers.hpp"

namespace qb {
namespace {

using namespace fixtures::cms;

const std::vector<RecordRow>& rows() {
  static const std::vector<RecordRow> table{
      recordRow<CmsNameModel>("CmsName", kCmsName, {"uid", "name", "taxonomies", "matched_similar_images"}),
      recordRow<CmsMainModel>("CmsMain", kCmsMain, {"type", "uid", "name", "main_image"}),
      recordRow<CmsNameListModel>("CmsNameList", kCmsNameList, {"uid"}),
      recordRow<SimpleCmsNameModel>("SimpleCmsName", kSimpleCmsName, {"uid"}),
      recordRow<TaxonomyNameModel>("TaxonomyName", kTaxonomyName,
                                   {"uid", "type", "taxonomy_type_name", "preferred_name", "latin_name"}),
      recordRow<CmsTaxonomyNameModel>("CmsTaxonomyName", kCmsTaxonomyName,
                                      {"type", "taxonomy_type", "taxonomy_type_name", "preferred_name", "latin_name"}),
      recordRow<CmsTitleModel>("CmsTitle", kCmsTitle, {}),
      recordRow<CmsImageModel>("CmsImage", kCmsImage, {"type", "image_url"}),
      recordRow<CopyrightModel>("Copyright", kCopyright, {}),
      recordRow<CmsStaticUrlModel>("CmsStaticUrl", kCmsStaticUrl, {"light_url", "dark_url"}),
      recordRow<CmsLayoutModel>("CmsLayout", kCmsLayout, {"name", "type", "type_set"}),
      recordRow<CmsContentModel>("CmsContent", kCmsContent, {"layouts", "tags"}),
      recordRow<CmsTagModel>("CmsTag", kCmsTag, {"type", "tag_name", "tag_values"}),
      recordRow<CmsTagValueModel>("CmsTagValue", kCmsTagValue, {"type"}),
      recordRow<CmsTagStringModel>("CmsTagString", kCmsTagString, {"type", "value"}),
      recordRow<CmsTagColorsModel>("CmsTagColors", kCmsTagColors, {"type", "color"}),
      recordRow<CmsArticleModel>("CmsArticle", kCmsArticle, {"url", "tags"}),
      recordRow<CmsVideoModel>("CmsVideo", kCmsVideo, {"video_classification", "title", "image_url", "video_url"}),
      recordRow<CmsDiseaseModel>("CmsDisease", kCmsDisease, {"article"}),
      recordRow<SimpleCmsDiseaseModel>("SimpleCmsDisease", kSimpleCmsDisease, {"uid"}),
      recordRow<DiagnoseDetectModel>("DiagnoseDetect", kDiagnoseDetect, {"regions"}),
      recordRow<DiagnoseDetectRegionModel>("DiagnoseDetectRegion", kDiagnoseDetectRegion,
                                           {"region", "detection_score", "strategy_score"}),
      recordRow<SimpleCmsItemModel>("SimpleCmsItem", kSimpleCmsItem,
                                    {"uid", "main_image_url", "common_name", "latin_name"}),
      recordRow<SimpleCmsItemFieldModel>("SimpleCmsItemField", kSimpleCmsItemField, {"key", "value"}),
      recordRow<BookModel>("Book", kBook,
                           {"uid", "title", "sub_title", "summary", "cover_image_url", "edition", "ptbn", "series_name",
                            "series_description", "price_tiers", "url"}),
      recordRow<PriceTierModel>("PriceTier", kPriceTier, {"type", "vip_only", "free", "sku"}),
      recordRow<ShareUrlModel>("ShareUrl", kShareUrl, {"light_url", "dark_url"}),
      recordRow<CmsGetCmsArticlesResponse>("GetCmsArticlesResponse", jsonObject("articles", jsonList(kCmsArticle)),
                                           {"articles"}),
      recordRow<CmsGetCmsNameResponse>("GetCmsNameResponse", jsonObject("cms_name", kCmsName), {"cms_name"}),
      recordRow<CmsGetCmsNameListResponse>("GetCmsNameListResponse", jsonObject("cms_name_list", jsonList(kCmsName)),
                                           {"cms_name_list"}),
      recordRow<CmsGetCmsNameListsResponse>("GetCmsNameListsResponse",
                                            jsonObject("cms_name_lists", jsonList(kCmsNameList)), {"cms_name_lists"}),
      recordRow<CmsGetStaticContentResponse>("GetStaticContentResponse", R"({"content": "<h1>Terms</h1>"})",
                                             {"content"}),
      recordRow<CmsGetStaticUrlResponse>("GetStaticUrlResponse", jsonObject("cms_static_url", kCmsStaticUrl),
                                         {"cms_static_url"}),
      recordRow<CmsUserFeedbackResponse>("UserFeedbackResponse", "{}", {}),
      recordRow<CmsGetSimpleCmsNameListResponse>(
          "GetSimpleCmsNameListResponse", jsonObject("cms_name_list", jsonList(kSimpleCmsName)), {"cms_name_list"}),
      recordRow<CmsGetNameListResponse>("GetNameListResponse", jsonObject("items", jsonList(kSimpleCmsItem)),
                                        {"items"}),
      recordRow<CmsListSimpleItemsResponse>("ListSimpleItemsResponse", jsonObject("items", jsonList(kSimpleCmsItem)),
                                            {"items"}),
      recordRow<CmsGetBookListResponse>("GetBookListResponse", jsonObject("books", jsonList(kBook)), {"books"}),
      recordRow<ShareGetCmsShareUrlsResponse>("GetCmsShareUrlsResponse", jsonObject("share_urls", jsonList(kShareUrl)),
                                              {"share_urls"}),
  };
  return table;
}

// Whether `actual` is `expected`, at every level. Numbers compare by value whatever their kind (a reply's
// 1 is written back as 1.0 by a Double member); members compare by key, since a map of any values is
// written in key order (the order of a record's keys is checked on its own).
bool sameJson(const JsonValue& expected, const JsonValue& actual, std::string& where) {
  if (expected.is_number() && actual.is_number()) {
    if (expected.is_double() || actual.is_double()) return expected.to_number<double>() == actual.to_number<double>();
    return expected == actual;
  }
  if (expected.kind() != actual.kind()) return false;
  if (expected.is_object()) {
    const auto& e = expected.get_object();
    const auto& a = actual.get_object();
    if (e.size() != a.size()) return false;
    for (const auto& member : e) {
      where += "." + std::string(member.key());
      const auto* other = a.if_contains(member.key());
      if (!other || !sameJson(member.value(), *other, where)) return false;
      where.resize(where.size() - member.key().size() - 1);
    }
    return true;
  }
  if (expected.is_array()) {
    const auto& e = expected.get_array();
    const auto& a = actual.get_array();
    if (e.size() != a.size()) return false;
    for (std::size_t i = 0; i < e.size(); ++i) {
      if (!sameJson(e[i], a[i], where)) return false;
    }
    return true;
  }
  return expected == actual;
}

// Removes "illustration" from every object: no Typed-face record reads it (the fixtures have it only in
// images).
void withoutIllustrations(JsonValue& value) {
  if (auto* map = value.if_object()) {
    JsonMap kept;  // not erase(), which moves the last member into the gap
    for (auto& member : *map) {
      if (member.key() == "illustration") continue;
      withoutIllustrations(member.value());
      kept.emplace(member.key(), member.value());
    }
    *map = std::move(kept);
  } else if (auto* array = value.if_array()) {
    for (auto& element : *array) withoutIllustrations(element);
  }
}

TEST(CmsTypedRecords, FullRepliesRoundTripAndEncodeEveryKeyInReplyOrder) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    row.roundTrip(row.full);
    JsonValue expected = parseJson(row.full);
    withoutIllustrations(expected);
    const std::string encoded = row.reencoded(row.full);
    std::string where;
    EXPECT_TRUE(sameJson(expected, parseJson(encoded), where)) << "differs at " << where << " in " << encoded;
    EXPECT_EQ(keysOf(parseJson(encoded)), keysOf(expected)) << "a record writes its keys in reply order";
  }
}

TEST(CmsTypedRecords, RequiredMembersFailWhenMissingOrNullOptionalOnesMayBeAbsent) {
  for (const auto& row : rows()) {
    const JsonMap full = parseJsonMap(row.full);
    expectRequiredKeysFail(row.name, full, row.required, row.roundTrip);
    JsonMap minimal;
    for (const char* key : row.required) minimal[key] = full.at(key);
    SCOPED_TRACE(row.name);
    row.roundTrip(toJson(minimal));
    JsonValue expected = minimal;
    withoutIllustrations(expected);
    std::string where;
    EXPECT_TRUE(sameJson(expected, parseJson(row.reencoded(toJson(minimal))), where))
        << "absent optionals are left out, at " << where;
    for (const auto& member : full) {
      if (!minimal.contains(member.key())) minimal[member.key()] = nullptr;  // null optionals are absent
    }
    row.roundTrip(toJson(minimal));
  }
}

// Decodes `json` as T with both decoders and returns the failure (both must fail alike).
template <class T>
std::optional<DecodingError> decodingFailure(const std::string& json) {
  std::optional<DecodingError> fast, exact;
  try {
    JSONDecoder().decode<T>(json);
  } catch (const DecodingError& e) {
    fast = e;
  }
  try {
    JsonValueDecoder().decode<T>(parseJson(json));
  } catch (const DecodingError& e) {
    exact = e;
  }
  EXPECT_EQ(fast.has_value(), exact.has_value()) << json;
  if (fast && exact) {
    EXPECT_EQ(fast->kind(), exact->kind()) << json;
    EXPECT_EQ(fast->codingPath(), exact->codingPath()) << json;
    EXPECT_EQ(fast->debugDescription(), exact->debugDescription()) << json;
  }
  return fast;
}

// `json` with the member `key` of the object at `pointer` replaced by `value`, or erased.
std::string edited(const std::string& json, std::string_view pointer, const char* key, std::optional<JsonValue> value) {
  JsonValue root = parseJson(json);
  auto& target = root.at_pointer(pointer).as_object();
  if (value) {
    target[key] = *value;
  } else {
    target.erase(key);
  }
  return toJson(root);
}

struct FailureRow {
  std::function<std::optional<DecodingError>()> decode;
  DecodingError::Kind kind;
  const char* path;
  const char* description;  // checked when not empty
};

template <class T>
FailureRow failing(std::string json, DecodingError::Kind kind, const char* path, const char* description = "") {
  return {[json = std::move(json)] { return decodingFailure<T>(json); }, kind, path, description};
}

TEST(CmsTypedRecords, UnknownEnumerationNumbersAndDeepFailuresAreReportedWithTheirPath) {
  using Kind = DecodingError::Kind;
  const FailureRow table[] = {
      // The Typed face requires what the Dictionary face leaves to the app.
      failing<TaxonomyNameModel>(R"({"preferred_name": "Monstera", "latin_name": "Monstera deliciosa"})",
                                 Kind::keyNotFound, "uid"),
      failing<CmsTagModel>(edited(kCmsTag, "", "type", std::nullopt), Kind::keyNotFound, "type"),
      // Unknown numbers of the enumerations without a fallback; an optional one fails too when present.
      failing<TaxonomyNameModel>(edited(kTaxonomyName, "", "type", 23), Kind::dataCorrupted, "type",
                                 "Cannot initialize TaxonomyType from invalid Int value 23"),
      failing<CmsTaxonomyNameModel>(edited(kCmsTaxonomyName, "", "taxonomy_type", -1), Kind::dataCorrupted,
                                    "taxonomy_type", "Cannot initialize TaxonomyType from invalid Int value -1"),
      failing<CmsImageModel>(edited(kCmsImage, "", "type", 6), Kind::dataCorrupted, "type",
                             "Cannot initialize CmsTagValueType from invalid Int value 6"),
      failing<CmsLayoutModel>(edited(kCmsLayout, "", "type", 3), Kind::dataCorrupted, "type",
                              "Cannot initialize CmsLayoutType from invalid Int value 3"),
      failing<CmsLayoutModel>(edited(kCmsLayout, "", "type_set", 12), Kind::dataCorrupted, "type_set",
                              "Cannot initialize CmsLayoutTypeSet from invalid Int value 12"),
      failing<CmsTagColorsModel>(edited(kCmsTagColors, "", "color", 16), Kind::dataCorrupted, "color",
                                 "Cannot initialize CmsColor from invalid Int value 16"),
      failing<CmsDiseaseModel>(edited(kCmsDisease, "", "disease_level", 3), Kind::dataCorrupted, "disease_level",
                               "Cannot initialize DiseaseLevel from invalid Int value 3"),
      // A failure deep inside a record reports the whole way to it.
      failing<CmsNameModel>(edited(kCmsName, "/taxonomies/0", "latin_name", std::nullopt), Kind::keyNotFound,
                            "taxonomies[0].latin_name"),
      failing<CmsNameModel>(edited(kCmsName, "/videos/0", "title", nullptr), Kind::valueNotFound, "videos[0].title"),
      failing<CmsNameModel>(edited(kCmsName, "/disease/related_disease_name/cms_tags/0", "type", 9),
                            Kind::dataCorrupted, "disease.related_disease_name.cms_tags[0].type",
                            "Cannot initialize CmsTagValueType from invalid Int value 9"),
      failing<CmsNameModel>(edited(kCmsName, "/disease/diagnose_detect/regions/0", "strategy_score", "high"),
                            Kind::typeMismatch, "disease.diagnose_detect.regions[0].strategy_score"),
      failing<CmsGetCmsNameListResponse>(edited(jsonObject("cms_name_list", jsonList(kCmsName)),
                                                "/cms_name_list/0/main_image", "image_url", std::nullopt),
                                         Kind::keyNotFound, "cms_name_list[0].main_image.image_url"),
      failing<CmsGetBookListResponse>(
          edited(jsonObject("books", jsonList(kBook)), "/books/0/price_tiers/0", "sku", nullptr), Kind::valueNotFound,
          "books[0].price_tiers[0].sku"),
      failing<ShareGetCmsShareUrlsResponse>(R"({"share_urls": [{"light_url": "l"}]})", Kind::keyNotFound,
                                            "share_urls[0].dark_url"),
  };
  for (const auto& c : table) {
    SCOPED_TRACE(c.path);
    const auto error = c.decode();
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->kind(), c.kind) << kindName(error->kind());
    EXPECT_EQ(renderCodingPath(error->codingPath()), c.path);
    if (*c.description) {
      EXPECT_EQ(error->debugDescription(), c.description);
    }
  }
}

TEST(CmsTypedRecords, VideoClassificationFallsBackToUnknownOnlyWhenDecoding) {
  const struct {
    std::int64_t raw;
    VideoClassification decoded;
  } table[] = {
      {0, VideoClassification::unknown},   {1, VideoClassification::sunLight},
      {3, VideoClassification::fertilize}, {4, VideoClassification::unknown},
      {-1, VideoClassification::unknown},  {std::numeric_limits<std::int64_t>::min(), VideoClassification::unknown},
  };
  for (const auto& c : table) {
    const std::string json = edited(kCmsVideo, "", "video_classification", c.raw);
    EXPECT_EQ(JSONDecoder().decode<CmsVideoModel>(json).videoClassification, c.decoded) << c.raw;
    EXPECT_EQ(JsonValueDecoder().decode<CmsVideoModel>(parseJson(json)).videoClassification, c.decoded) << c.raw;
  }
  EXPECT_FALSE(fromRawValue<VideoClassification>(4));
  EXPECT_FALSE(fromRawValue<VideoClassification>(-1));
  // A missing classification still fails: the fallback is for unknown numbers only.
  EXPECT_THROW(JSONDecoder().decode<CmsVideoModel>(edited(kCmsVideo, "", "video_classification", std::nullopt)),
               DecodingError);
}

TEST(CmsTypedRecords, KeysOnlyOneFaceReads) {
  // The image's "illustration" is never read, whatever it holds, and never written.
  const auto image =
      JSONDecoder().decode<CmsImageModel>(R"({"type": 2, "image_url": "u", "illustration": {"not": "text"}})");
  EXPECT_EQ(image.imageUrl, "u");
  EXPECT_FALSE(
      parseJsonMap(JSONEncoder().encode(JSONDecoder().decode<CmsImageModel>(kCmsImage))).contains("illustration"));

  // The name summary's "cms_tags" is read by this face.
  const auto name = JSONDecoder().decode<SimpleCmsNameModel>(kSimpleCmsName);
  ASSERT_TRUE(name.cmsTags.has_value());
  ASSERT_EQ(name.cmsTags->size(), 1u);
  EXPECT_EQ(name.cmsTags->front().tagName, "light");
  EXPECT_EQ(name.properties->at("n").value, parseJson("[1, 2.5, null]"));
}

TEST(CmsTypedRecords, TagValuesStayRawMapsThatTheAppDecodesByTheirType) {
  const std::string tag = R"({"type": 1, "tag_name": "ids", "tag_values": [
      {"type": 3, "id": 9007199254740993, "big": 18446744073709551615, "ratio": 0.1},
      {"type": 2, "image_url": "u", "illustration": "x"}]})";
  for (const auto& decoded :
       {JSONDecoder().decode<CmsTagModel>(tag), JsonValueDecoder().decode<CmsTagModel>(parseJson(tag))}) {
    ASSERT_EQ(decoded.tagValues.size(), 2u);
    const auto& first = decoded.tagValues[0];
    ASSERT_TRUE(first.at("id").value.is_int64());
    EXPECT_EQ(first.at("id").value.get_int64(), 9007199254740993);
    ASSERT_TRUE(first.at("big").value.is_uint64());
    EXPECT_EQ(first.at("big").value.get_uint64(), 18446744073709551615u);
    const std::string text = JSONEncoder().encode(decoded);
    EXPECT_NE(text.find(R"("id":9007199254740993)"), std::string::npos) << text;
    EXPECT_NE(text.find(R"("big":18446744073709551615)"), std::string::npos) << text;

    // The "type" says which record the map has the shape of.
    const auto second = JsonValueEncoder().encode(decoded.tagValues[1]);
    EXPECT_EQ(JsonValueDecoder().decode<CmsTagValueModel>(second).type, CmsTagValueType::cmsTagValueImage);
    EXPECT_EQ(JsonValueDecoder().decode<CmsImageModel>(second).imageUrl, "u");
  }
}

}  // namespace
}  // namespace qb
