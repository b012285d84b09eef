// The content catalogue's enumerations: raw values are case positions, names are as the service has
// them, and only VideoClassification lists its cases.
#include <gtest/gtest.h>

#include <QBComponentAPI/cms/enums/CmsEnums.hpp>
#include <functional>

namespace qb {
namespace {

struct EnumRow {
  const char* name;
  std::size_t count;
  std::function<void()> check;
};

// Checks that case i has raw value i, that the name list matches `names` where given, and that the
// first raw value past the cases and -1 make no case.
template <class E>
EnumRow enumRow(const char* name, std::size_t count, std::vector<std::pair<std::int64_t, const char*>> names) {
  return {name, count, [names = std::move(names), count] {
            const auto& cases = EnumTraits<E>::cases;
            ASSERT_EQ(std::size(cases), count);
            for (std::size_t i = 0; i < count; ++i) {
              EXPECT_EQ(rawValue(cases[i].value), static_cast<std::int64_t>(i)) << cases[i].name;
              EXPECT_EQ(fromRawValue<E>(static_cast<std::int64_t>(i)), cases[i].value);
            }
            for (const auto& [raw, caseNameText] : names) {
              EXPECT_EQ(caseName(*fromRawValue<E>(raw)), caseNameText) << raw;
            }
            EXPECT_FALSE(fromRawValue<E>(static_cast<std::int64_t>(count)));
            EXPECT_FALSE(fromRawValue<E>(-1));
          }};
}

TEST(CmsEnums, RawValuesAreCasePositions) {
  const EnumRow table[] = {
      enumRow<TaxonomyType>("TaxonomyType", 23, {{0, "kindom"}, {2, "class"}, {17, "termdomain"}, {22, "other"}}),
      enumRow<CmsFormat>("CmsFormat", 2, {{0, "markdown"}, {1, "plainText"}}),
      enumRow<CmsTagValueType>("CmsTagValueType", 6, {{0, "cmsTagValueString"}, {5, "cmsTagValueColor"}}),
      enumRow<CmsLayoutType>("CmsLayoutType", 3, {{0, "nameTags"}, {2, "subPage"}}),
      enumRow<CmsLayoutTypeSet>("CmsLayoutTypeSet", 12,
                                {{0, "faq"}, {8, "multiLevelWaterfall"}, {11, "siblingNameList"}}),
      enumRow<CmsColor>("CmsColor", 16, {{0, "orange"}, {13, "variegated"}, {15, "gold"}}),
      enumRow<DiseaseLevel>("DiseaseLevel", 3, {{0, "healthy"}, {2, "severe"}}),
      enumRow<VideoClassification>("VideoClassification", 4, {{0, "unknown"}, {1, "sunLight"}, {3, "fertilize"}}),
  };
  for (const auto& row : table) {
    SCOPED_TRACE(row.name);
    row.check();
  }
  EXPECT_EQ(EnumTraits<TaxonomyType>::name, "TaxonomyType");
}

template <class E>
concept ListsItsCases = requires {
  allCases<E>();
};

TEST(CmsEnums, OnlyVideoClassificationListsItsCases) {
  const auto cases = allCases<VideoClassification>();
  ASSERT_EQ(cases.size(), 4u);
  EXPECT_EQ(cases.front().value, VideoClassification::unknown);
  EXPECT_EQ(cases.back().value, VideoClassification::fertilize);
  static_assert(ListsItsCases<VideoClassification> && !ListsItsCases<TaxonomyType> && !ListsItsCases<CmsColor> &&
                !ListsItsCases<CmsFormat> && !ListsItsCases<CmsTagValueType> && !ListsItsCases<CmsLayoutType> &&
                !ListsItsCases<CmsLayoutTypeSet> && !ListsItsCases<DiseaseLevel>);
}

}  // namespace
}  // namespace qb
