// Every Dictionary-face content model: round trip, the required checks in declared order, the integer
// fields, failures of nested records, and the differences from the other face that are kept on purpose.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <functional>
#include <set>
#include <string>
#include <vector>

#include "cms/Fixtures.hpp"
#include "dict_helpers.hpp"

namespace qb {
namespace {

using namespace fixtures::cms;

// Removes "cms_tags" from the simple content name(s) at `pointer` ("" for the map itself, or a list of
// them): this face does not keep them, so they never come back from toDictionary.
std::function<void(JsonValue&)> dropSimpleNameTags(const char* pointer, bool isList) {
  return [=](JsonValue& value) {
    JsonValue& at = value.at_pointer(pointer);
    if (!isList) {
      at.as_object().erase("cms_tags");
      return;
    }
    for (auto& element : at.as_array()) element.as_object().erase("cms_tags");
  };
}

struct ModelRow {
  const char* name;
  Reader read;
  std::string full;
  // Required keys in check order, each with the reason its absence raises.
  std::vector<std::pair<const char*, const char*>> required;
  // Integer (enumeration) fields: 0 when absent, and written back then.
  std::vector<const char*> integers;
  // What toDictionary of the full reply lacks on purpose (null: nothing).
  std::function<void(JsonValue&)> notKept;
};

// clang-format off
const std::vector<ModelRow>& rows() {
  static const std::vector<ModelRow> table{
      {"CmsName", reader<QBAPICmsName>(), kCmsName,
       {{"uid", "uid is missing in model CmsName"},
        {"name", "name is missing in model CmsName"},
        {"taxonomies", "taxonomies is missing in model CmsName"},
        {"matched_similar_images", "matchedSimilarImages is missing in model CmsName"}},
       {}, dropSimpleNameTags("/children", true)},
      {"CmsMain", reader<QBAPICmsMain>(), kCmsMain,
       {{"uid", "uid is missing in model CmsMain"},
        {"name", "name is missing in model CmsMain"},
        {"main_image", "mainImage is missing in model CmsMain"}},
       {"type"}, nullptr},
      {"CmsNameList", reader<QBAPICmsNameList>(), kCmsNameList,
       {{"uid", "uid is missing in model CmsNameList"}}, {}, dropSimpleNameTags("/items", true)},
      {"SimpleCmsName", reader<QBAPISimpleCmsName>(), kSimpleCmsName,
       {{"uid", "uid is missing in model SimpleCmsName"}}, {}, dropSimpleNameTags("", false)},
      // Only the two names are required: an entry without "uid" (and "type" 0) is accepted.
      {"TaxonomyName", reader<QBAPITaxonomyName>(), kTaxonomyName,
       {{"preferred_name", "preferredName is missing in model TaxonomyName"},
        {"latin_name", "latinName is missing in model TaxonomyName"}},
       {"type"}, nullptr},
      {"CmsTaxonomyName", reader<QBAPICmsTaxonomyName>(), kCmsTaxonomyName,
       {{"taxonomy_type_name", "taxonomyTypeName is missing in model CmsTaxonomyName"},
        {"preferred_name", "preferredName is missing in model CmsTaxonomyName"},
        {"latin_name", "latinName is missing in model CmsTaxonomyName"}},
       {"type", "taxonomy_type"}, nullptr},
      {"CmsTitle", reader<QBAPICmsTitle>(), kCmsTitle, {}, {}, nullptr},
      {"CmsImage", reader<QBAPICmsImage>(), kCmsImage,
       {{"image_url", "imageUrl is missing in model CmsImage"}}, {"type"}, nullptr},
      {"Copyright", reader<QBAPICopyright>(), kCopyright, {}, {}, nullptr},
      {"CmsStaticUrl", reader<QBAPICmsStaticUrl>(), kCmsStaticUrl,
       {{"light_url", "lightUrl is missing in model CmsStaticUrl"},
        {"dark_url", "darkUrl is missing in model CmsStaticUrl"}},
       {}, nullptr},
      {"CmsLayout", reader<QBAPICmsLayout>(), kCmsLayout,
       {{"name", "name is missing in model CmsLayout"}}, {"type", "type_set"}, nullptr},
      {"CmsContent", reader<QBAPICmsContent>(), kCmsContent,
       {{"layouts", "layouts is missing in model CmsContent"},
        {"tags", "tags is missing in model CmsContent"}},
       {}, nullptr},
      {"CmsTag", reader<QBAPICmsTag>(), kCmsTag,
       {{"tag_name", "tagName is missing in model CmsTag"},
        {"tag_values", "tagValues is missing in model CmsTag"}},
       {"type"}, nullptr},
      {"CmsTagValue", reader<QBAPICmsTagValue>(), kCmsTagValue, {}, {"type"}, nullptr},
      {"CmsTagString", reader<QBAPICmsTagString>(), kCmsTagString,
       {{"value", "value is missing in model CmsTagString"}}, {"type"}, nullptr},
      {"CmsTagColors", reader<QBAPICmsTagColors>(), kCmsTagColors, {}, {"type", "color"}, nullptr},
      {"CmsArticle", reader<QBAPICmsArticle>(), kCmsArticle,
       {{"url", "url is missing in model CmsArticle"},
        {"tags", "tags is missing in model CmsArticle"}},
       {}, nullptr},
      {"CmsVideo", reader<QBAPICmsVideo>(), kCmsVideo,
       {{"title", "title is missing in model CmsVideo"},
        {"image_url", "imageUrl is missing in model CmsVideo"},
        {"video_url", "videoUrl is missing in model CmsVideo"}},
       {"video_classification"}, nullptr},
      {"CmsDisease", reader<QBAPICmsDisease>(), kCmsDisease,
       {{"article", "article is missing in model CmsDisease"}}, {"disease_level"}, nullptr},
      {"SimpleCmsDisease", reader<QBAPISimpleCmsDisease>(), kSimpleCmsDisease,
       {{"uid", "uid is missing in model SimpleCmsDisease"}}, {}, nullptr},
      {"DiagnoseDetect", reader<QBAPIDiagnoseDetect>(), kDiagnoseDetect,
       {{"regions", "regions is missing in model DiagnoseDetect"}}, {}, nullptr},
      {"DiagnoseDetectRegion", reader<QBAPIDiagnoseDetectRegion>(), kDiagnoseDetectRegion,
       {{"region", "region is missing in model DiagnoseDetectRegion"},
        {"detection_score", "detectionScore is missing in model DiagnoseDetectRegion"},
        {"strategy_score", "strategyScore is missing in model DiagnoseDetectRegion"}},
       {}, nullptr},
  };
  return table;
}
// clang-format on

std::vector<std::string> keysOf(const JsonMap& map) {
  std::vector<std::string> keys;
  for (const auto& member : map) keys.emplace_back(member.key());
  return keys;
}

TEST(CmsDictModels, FullRepliesRoundTripInDeclaredOrder) {
  EXPECT_EQ(rows().size(), 22u);
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    JsonValue expected = parseJson(row.full);
    if (row.notKept) row.notKept(expected);
    const auto model = row.read(parseJsonMap(row.full));
    EXPECT_EQ(model->modelName(), row.name);
    // The replies list their keys in the records' declared order, which toDictionary keeps.
    EXPECT_EQ(toJson(model->toDictionary()), toJson(expected));
    EXPECT_EQ(parseJson(model->toJsonString().value_or("null")), expected);
  }
}

TEST(CmsDictModels, EachMissingOrNullRequiredFieldRaisesItsReason) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    expectRequiredKeysRaise(row.read, row.full, row.required);
  }
}

TEST(CmsDictModels, OnlyRequiredKeysGiveThoseKeysAndZeroIntegersBack) {
  for (const auto& row : rows()) {
    SCOPED_TRACE(row.name);
    const JsonMap full = parseJsonMap(row.full);
    JsonMap minimal;
    std::set<std::string> expected(row.integers.begin(), row.integers.end());
    for (const auto& [key, reason] : row.required) {
      minimal[key] = full.at(key);
      expected.insert(key);
    }
    const JsonMap written = row.read(minimal)->toDictionary();
    const auto keys = keysOf(written);
    EXPECT_EQ(std::set<std::string>(keys.begin(), keys.end()), expected);
    for (const char* key : row.integers) {
      if (const JsonValue* value = written.if_contains(key)) {
        EXPECT_EQ(*value, JsonValue(0)) << key;
      }
    }
  }
}

TEST(CmsDictModels, AFailureInsideANestedRecordNamesTheInnerModel) {
  struct Case {
    const char* name;
    Reader read;
    const std::string& full;
    const char* pointer;  // the nested map that loses `key`
    const char* key;
    const char* reason;
  };
  // clang-format off
  const Case cases[] = {
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/taxonomies/0", "latin_name",
       "latinName is missing in model TaxonomyName"},
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/name", "preferred_name",
       "preferredName is missing in model TaxonomyName"},
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/children/0", "uid",
       "uid is missing in model SimpleCmsName"},
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/disease/diagnose_detect/regions/0", "strategy_score",
       "strategyScore is missing in model DiagnoseDetectRegion"},
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/videos/0", "video_url",
       "videoUrl is missing in model CmsVideo"},
      {"CmsName", reader<QBAPICmsName>(), kCmsName, "/confusion", "tag_values",
       "tagValues is missing in model CmsTag"},
      {"CmsMain", reader<QBAPICmsMain>(), kCmsMain, "/main_image/tags/0", "tag_name",
       "tagName is missing in model CmsTag"},
      {"CmsArticle", reader<QBAPICmsArticle>(), kCmsArticle, "/cover_image", "image_url",
       "imageUrl is missing in model CmsImage"},
      {"CmsDisease", reader<QBAPICmsDisease>(), kCmsDisease, "/related_disease_name/cms_static_url", "dark_url",
       "darkUrl is missing in model CmsStaticUrl"},
      {"CmsDisease", reader<QBAPICmsDisease>(), kCmsDisease, "/cms_layouts/0", "name",
       "name is missing in model CmsLayout"},
      {"CmsContent", reader<QBAPICmsContent>(), kCmsContent, "/tags/0", "tag_name",
       "tagName is missing in model CmsTag"},
      {"CmsNameList", reader<QBAPICmsNameList>(), kCmsNameList, "/items/0/cms_static_url", "light_url",
       "lightUrl is missing in model CmsStaticUrl"},
  };
  // clang-format on
  for (const auto& c : cases) {
    JsonValue value = parseJson(c.full);
    value.at_pointer(c.pointer).as_object().erase(c.key);
    EXPECT_EQ(reasonOf([&] { c.read(value.as_object()); }), c.reason) << c.name << c.pointer << " without " << c.key;
  }
}

TEST(CmsDictModels, CmsTagChecksEachFieldRightAfterReadingIt) {
  struct Case {
    const char* json;
    const char* reason;  // nullptr: a JsonTypeError, so the field was read before any later check
  };
  const Case cases[] = {
      {R"({})", "tagName is missing in model CmsTag"},
      {R"({"type": null})", nullptr},
      {R"({"tag_name": "t"})", "tagValues is missing in model CmsTag"},
      {R"({"tag_name": "t", "cms_title": "not a map"})", nullptr},
      {R"({"tag_name": "t", "source_url": "u", "with_edible_or_medical_info": 1})",
       "tagValues is missing in model CmsTag"},
      {R"({"tag_name": "t", "tag_values": []})", "<none>"},
  };
  for (const auto& c : cases) {
    const JsonMap map = parseJsonMap(c.json);
    if (c.reason) {
      EXPECT_EQ(reasonOf([&] { QBAPICmsTag::initWithJsonObject(map); }), c.reason) << c.json;
    } else {
      EXPECT_THROW(QBAPICmsTag::initWithJsonObject(map), JsonTypeError) << c.json;
    }
  }
  EXPECT_EQ(
      toJson(QBAPICmsTag::initWithJsonObject(parseJsonMap(R"({"tag_values": [], "tag_name": "t"})"))->toDictionary()),
      R"({"type":0,"tag_name":"t","tag_values":[]})");
}

TEST(CmsDictModels, TagValuesStayRawMapsThatTheirTypeTellsHowToRead) {
  auto tag = QBAPICmsTag::initWithJsonObject(parseJsonMap(
      R"({"tag_name": "t", "tag_values": [{"type": 2, "image_url": "u", "extra": [1]}, {"type": 0, "value": "v"}]})"));
  ASSERT_TRUE(tag->tagValues());
  const JsonList values = *tag->tagValues();
  ASSERT_EQ(values.size(), 2u);
  EXPECT_EQ(values[0], parseJson(R"({"type": 2, "image_url": "u", "extra": [1]})")) << "kept unchanged";
  EXPECT_EQ(QBAPICmsTagValue::initWithJsonObject(values[0])->type(), 2);
  EXPECT_EQ(QBAPICmsImage::initWithJsonObject(values[0])->imageUrl(), JsonValue("u"));
  EXPECT_EQ(QBAPICmsTagString::initWithJsonObject(values[1])->value(), JsonValue("v"));

  // The fixture's values: a string and a colour.
  auto full = QBAPICmsTag::initWithJsonObject(parseJsonMap(kCmsTag));
  EXPECT_EQ(QBAPICmsTagColors::initWithJsonObject((*full->tagValues())[1])->color(), 3);
}

TEST(CmsDictModels, KeepsWhatTheOtherFaceReadsDifferently) {
  // A missing disease level reads as 0 (healthy) and is written back as 0.
  JsonMap disease = parseJsonMap(kCmsDisease);
  disease.erase("disease_level");
  auto sick = QBAPICmsDisease::initWithJsonObject(disease);
  EXPECT_EQ(sick->diseaseLevel(), 0);
  disease["disease_level"] = 0;
  EXPECT_EQ(JsonValue(sick->toDictionary()), JsonValue(disease));

  // The illustration text is kept and written back.
  JsonMap image = parseJsonMap(R"({"image_url": "u", "illustration": "x", "similarity": 1})");
  auto kept = QBAPICmsImage::initWithJsonObject(image);
  EXPECT_EQ(kept->illustration(), JsonValue("x"));
  EXPECT_EQ(toJson(kept->toDictionary()), R"({"type":0,"image_url":"u","illustration":"x","similarity":1})")
      << "similarity stays the integer it was";

  // Unknown enumeration numbers are kept as they are.
  for (int classification : {4, -1}) {
    JsonMap video = parseJsonMap(kCmsVideo);
    video["video_classification"] = classification;
    auto read = QBAPICmsVideo::initWithJsonObject(video);
    EXPECT_EQ(read->videoClassification(), classification);
    EXPECT_EQ(JsonValue(read->toDictionary()), JsonValue(video));
  }
  JsonMap layout = parseJsonMap(kCmsLayout);
  layout["type_set"] = 12;
  EXPECT_EQ(QBAPICmsLayout::initWithJsonObject(layout)->typeSet(), 12);
  JsonMap taxonomy = parseJsonMap(kTaxonomyName);
  taxonomy["type"] = 23;
  EXPECT_EQ(QBAPITaxonomyName::initWithJsonObject(taxonomy)->type(), 23);

  // A simple name ignores its tags and keeps its properties whatever they hold.
  JsonMap simple = parseJsonMap(kSimpleCmsName);
  simple["properties"] = JsonList{1, "a"};
  const JsonMap written = QBAPISimpleCmsName::initWithJsonObject(simple)->toDictionary();
  EXPECT_FALSE(written.contains("cms_tags"));
  EXPECT_EQ(written.at("properties"), parseJson(R"([1, "a"])"));
}

TEST(CmsDictModels, AnEmptyListSatisfiesARequiredList) {
  JsonMap name = parseJsonMap(kCmsName);
  name["matched_similar_images"] = JsonList{};
  name.erase("main_image");
  auto read = QBAPICmsName::initWithJsonObject(name);
  EXPECT_TRUE(read->matchedSimilarImages()->empty());
  EXPECT_FALSE(read->mainImage());
  EXPECT_TRUE(QBAPIDiagnoseDetect::initWithJsonObject(parseJsonMap(R"({"regions": []})"))->regions()->empty());
}

}  // namespace
}  // namespace qb
