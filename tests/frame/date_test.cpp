#include <QBComponentAPI/frame/Date.hpp>

#include <gtest/gtest.h>

#include <cmath>

namespace qb {
namespace {

using std::chrono::milliseconds;

TEST(Date, Iso8601ReadsOffsetsAndFractionsAndWritesUtc) {
  struct Case {
    const char* text;
    std::int64_t ms;
  } cases[] = {
      {"1970-01-01T00:00:00Z", 0},
      {"2023-11-14T22:13:20Z", 1700000000000},
      {"2023-11-14T22:13:20.250Z", 1700000000250},
      {"2023-11-15T00:13:20+02:00", 1700000000000},
      {"1969-12-31T23:59:59Z", -1000},
  };
  for (const auto& c : cases) {
    const auto date = parseIso8601(c.text);
    ASSERT_TRUE(date) << c.text;
    EXPECT_EQ(date->time_since_epoch().count(), c.ms) << c.text;
    EXPECT_EQ(parseIso8601(formatIso8601(*date)), date);
  }
  EXPECT_EQ(formatIso8601(Date(milliseconds(1700000000250))), "2023-11-14T22:13:20.250Z");
  for (const char* bad : {"", "2023-11-14", "2023-13-01T00:00:00Z", "2023-02-30T00:00:00Z", "2023-11-14T22:13:20",
                          "2023-11-14T22:13:20Zjunk", "2023-11-14T22:13:20."}) {
    EXPECT_FALSE(parseIso8601(bad)) << bad;
  }
}

TEST(Date, NumbersConvertByStrategyAndRejectTheUnrepresentable) {
  EXPECT_EQ(dateFromNumber(1700000000.25, DateStrategy::secondsSince1970)->time_since_epoch().count(), 1700000000250);
  EXPECT_EQ(dateFromNumber(1700000000250, DateStrategy::millisecondsSince1970)->time_since_epoch().count(),
            1700000000250);
  EXPECT_EQ(dateToNumber(Date(milliseconds(1500)), DateStrategy::secondsSince1970), 1.5);
  EXPECT_FALSE(dateFromNumber(1e300, DateStrategy::secondsSince1970));
  EXPECT_FALSE(dateFromNumber(std::nan(""), DateStrategy::millisecondsSince1970));
  // Only the years 0000 to 9999, which every strategy writes and reads back exactly.
  EXPECT_TRUE(dateFromNumber(253402300799.999, DateStrategy::secondsSince1970));
  EXPECT_FALSE(dateFromNumber(253402300800.0, DateStrategy::secondsSince1970));
  EXPECT_TRUE(parseIso8601("0000-01-01T00:00:00Z"));
  EXPECT_FALSE(parseIso8601("0000-01-01T00:00:00+01:00"));
}

}  // namespace
}  // namespace qb
