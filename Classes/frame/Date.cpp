#include <QBComponentAPI/frame/Date.hpp>

#include <cmath>
#include <cstdio>

namespace qb {
namespace {

bool digits(std::string_view text, std::size_t at, std::size_t count, int& out) noexcept {
  if (at + count > text.size()) return false;
  int value = 0;
  for (std::size_t i = at; i < at + count; ++i) {
    if (text[i] < '0' || text[i] > '9') return false;
    value = value * 10 + (text[i] - '0');
  }
  out = value;
  return true;
}

}  // namespace

std::optional<Date> dateFromNumber(double amount, DateStrategy strategy) noexcept {
  const double ms = strategy == DateStrategy::millisecondsSince1970 ? amount : amount * 1000.0;
  // Checked before rounding, which is only defined for numbers that fit.
  if (!(std::fabs(ms) < 1e15)) return std::nullopt;
  const Date date{std::chrono::milliseconds(std::llround(ms))};
  if (!isCodableDate(date)) return std::nullopt;
  return date;
}

double dateToNumber(Date date, DateStrategy strategy) noexcept {
  const auto ms = static_cast<double>(date.time_since_epoch().count());
  return strategy == DateStrategy::millisecondsSince1970 ? ms : ms / 1000.0;
}

std::string formatIso8601(Date date) {
  using namespace std::chrono;
  const auto day = floor<days>(date);
  const year_month_day ymd(day);
  const hh_mm_ss<milliseconds> time(date - day);
  char buffer[40];
  const int ms = static_cast<int>(time.subseconds().count());
  if (ms != 0) {
    std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02uT%02d:%02d:%02d.%03dZ", static_cast<int>(ymd.year()),
                  static_cast<unsigned>(ymd.month()), static_cast<unsigned>(ymd.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()), ms);
  } else {
    std::snprintf(buffer, sizeof buffer, "%04d-%02u-%02uT%02d:%02d:%02dZ", static_cast<int>(ymd.year()),
                  static_cast<unsigned>(ymd.month()), static_cast<unsigned>(ymd.day()),
                  static_cast<int>(time.hours().count()), static_cast<int>(time.minutes().count()),
                  static_cast<int>(time.seconds().count()));
  }
  return buffer;
}

std::optional<Date> parseIso8601(std::string_view text) noexcept {
  using namespace std::chrono;
  int y, mo, d, h, mi, s;
  if (!digits(text, 0, 4, y) || text.size() < 20 || text[4] != '-' || !digits(text, 5, 2, mo) ||
      text[7] != '-' || !digits(text, 8, 2, d) || (text[10] != 'T' && text[10] != 't') ||
      !digits(text, 11, 2, h) || text[13] != ':' || !digits(text, 14, 2, mi) || text[16] != ':' ||
      !digits(text, 17, 2, s)) {
    return std::nullopt;
  }
  const year_month_day ymd{year(y), month(static_cast<unsigned>(mo)), day(static_cast<unsigned>(d))};
  if (!ymd.ok() || h > 23 || mi > 59 || s > 60) return std::nullopt;
  std::size_t at = 19;
  int ms = 0;
  if (at < text.size() && text[at] == '.') {
    ++at;
    int scale = 100;
    const std::size_t start = at;
    while (at < text.size() && text[at] >= '0' && text[at] <= '9') {
      ms += (text[at] - '0') * scale;
      scale /= 10;
      ++at;
    }
    if (at == start) return std::nullopt;
  }
  int offsetMinutes = 0;
  if (at < text.size() && (text[at] == 'Z' || text[at] == 'z')) {
    ++at;
  } else if (at < text.size() && (text[at] == '+' || text[at] == '-')) {
    int oh, om;
    if (!digits(text, at + 1, 2, oh) || at + 3 >= text.size() || text[at + 3] != ':' ||
        !digits(text, at + 4, 2, om) || oh > 23 || om > 59) {
      return std::nullopt;
    }
    offsetMinutes = (text[at] == '+' ? 1 : -1) * (oh * 60 + om);
    at += 6;
  } else {
    return std::nullopt;
  }
  if (at != text.size()) return std::nullopt;
  const Date date = Date(sys_days(ymd)) + hours(h) + minutes(mi) + seconds(s) + milliseconds(ms) - minutes(offsetMinutes);
  if (!isCodableDate(date)) return std::nullopt;
  return date;
}

}  // namespace qb
