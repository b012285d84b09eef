// Tag values as records: the type a value names picks the record, in both faces, and a value that
// names no type, or does not have its type's shape, fails with the face's usual error.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/CmsTagValues.hpp>
#include <QBComponentAPI/cms/dict/CmsDict.hpp>
#include <QBComponentAPI/cms/typed/CmsTyped.hpp>

#include "cms/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures::cms;

std::map<std::string, AnyCodable> anyMap(const std::string& json) {
  std::map<std::string, AnyCodable> out;
  for (const auto& member : parseJsonMap(json)) out.emplace(member.key(), AnyCodable{member.value()});
  return out;
}

TEST(CmsTagValues, EachTypeBuildsItsRecordInBothFaces) {
  // A tag as a value of another tag carries the tag kind.
  JsonMap nested = parseJsonMap(kCmsTag);
  nested["type"] = 1;
  const std::string tagValue = toJson(nested);
  const struct {
    const std::string* json;
    std::size_t index;
    std::string_view model;
  } rows[] = {{&kCmsTagString, 0, "CmsTagString"},
              {&tagValue, 1, "CmsTag"},
              {&kCmsImage, 2, "CmsImage"},
              {&kCmsMain, 3, "CmsMain"},
              {&kCmsTaxonomyName, 4, "CmsTaxonomyName"},
              {&kCmsTagColors, 5, "CmsTagColors"}};
  for (const auto& row : rows) {
    SCOPED_TRACE(row.model);
    const CmsTagValueRecord record = tagValueRecord(anyMap(*row.json));
    EXPECT_EQ(record.index(), row.index);
    EXPECT_EQ(tagValueModel(parseJson(*row.json))->modelName(), row.model);
  }
  EXPECT_EQ(std::get<CmsImageModel>(tagValueRecord(anyMap(R"({"type": 2, "image_url": "u"})"))).imageUrl, "u");
}

TEST(CmsTagValues, AMissingOrUnknownTypeOrAWrongShapeFails) {
  const struct {
    const char* json;
    DecodingError::Kind kind;
    const char* path;
    bool dictionaryFails;  // JsonTypeError from the Dictionary face
  } rows[] = {
      {R"({"value": "x"})", DecodingError::Kind::keyNotFound, "type", true},
      {R"({"type": null, "value": "x"})", DecodingError::Kind::valueNotFound, "type", true},
      {R"({"type": 6})", DecodingError::Kind::dataCorrupted, "type", true},
      {R"({"type": -1})", DecodingError::Kind::dataCorrupted, "type", true},
      {R"({"type": "0", "value": "x"})", DecodingError::Kind::typeMismatch, "type", true},
      {R"({"type": 0})", DecodingError::Kind::keyNotFound, "value", false},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.json);
    try {
      tagValueRecord(anyMap(row.json));
      ADD_FAILURE() << "decoded";
    } catch (const DecodingError& e) {
      EXPECT_EQ(e.kind(), row.kind);
      EXPECT_EQ(renderCodingPath(e.codingPath()), row.path);
    }
    if (row.dictionaryFails) {
      EXPECT_THROW(tagValueModel(parseJson(row.json)), JsonTypeError);
    } else {
      EXPECT_THROW(tagValueModel(parseJson(row.json)), ParameterCheckFailException);
    }
  }
  EXPECT_THROW(tagValueModel(JsonValue(JsonList{})), JsonTypeError);
}

}  // namespace
}  // namespace qb
