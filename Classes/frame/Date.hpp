// Dates of the Typed face and the ways they are put on the wire.
#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace qb {

using Date = std::chrono::sys_time<std::chrono::milliseconds>;

/// How a codec writes and reads a Date.
enum class DateStrategy {
  secondsSince1970,       ///< a JSON number of seconds, fractions allowed (the default)
  millisecondsSince1970,  ///< a JSON number of milliseconds
  iso8601,                ///< a text such as "2024-03-01T12:30:05Z" (".250" and "+02:00" accepted)
};

/// The dates the codecs carry: the years 0000 to 9999, which every strategy writes and reads back exactly.
inline constexpr Date kEarliestDate = std::chrono::sys_days(std::chrono::year(0) / 1 / 1);
inline constexpr Date kLatestDate =
    Date(std::chrono::sys_days(std::chrono::year(10000) / 1 / 1)) - std::chrono::milliseconds(1);

constexpr bool isCodableDate(Date date) noexcept { return date >= kEarliestDate && date <= kLatestDate; }

/// The Date `amount` seconds (or milliseconds) after 1970, rounded to the millisecond; std::nullopt when the
/// number is not finite or the date lies outside the years 0000 to 9999.
std::optional<Date> dateFromNumber(double amount, DateStrategy strategy) noexcept;
/// The number a Date is written as under a numeric strategy.
double dateToNumber(Date date, DateStrategy strategy) noexcept;

/// ISO 8601 in UTC ("2024-03-01T12:30:05Z", with ".mmm" only when there are milliseconds).
std::string formatIso8601(Date date);
/// Parses "YYYY-MM-DDTHH:MM:SS[.fff][Z|±HH:MM]"; std::nullopt for anything else, and for an offset that
/// moves the date out of the years 0000 to 9999.
std::optional<Date> parseIso8601(std::string_view text) noexcept;

}  // namespace qb
