// Value types that the host messaging layer and the app hand to the library.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

#include <QBComponentAPI/frame/Enum.hpp>
#include <QBComponentAPI/frame/Json.hpp>

namespace qb {

/// The app's language, sent as its integer under "language_code". The numbers are stable: new languages
/// are only ever appended.
enum class LanguageCode : std::int64_t {
  en = 0,
  zhHans = 1,
  zhHant = 2,
  ja = 3,
  ko = 4,
  fr = 5,
  de = 6,
  es = 7,
  it = 8,
  pt = 9,
  ru = 10,
  ar = 11,
  nl = 12,
  pl = 13,
  tr = 14,
  sv = 15,
};

/// The kind of device the app runs on, sent as its integer under "device_type".
enum class DeviceType : std::int64_t {
  ios = 1,
  android = 2,
  web = 3,
};

/// Any JSON value, carried through the Typed face unread (for example "other_configs").
struct AnyCodable {
  JsonValue value;
  bool operator==(const AnyCodable&) const = default;
};

/// A file to upload. It never appears in an encoded body; it travels as a multipart part.
struct APIFile {
  std::vector<std::byte> data;
  std::optional<std::string> contentType = std::nullopt;
  bool operator==(const APIFile&) const = default;
};

/// One multipart part of a Typed-face request.
struct APIMimeBody {
  std::string name;         ///< form field name
  APIFile file;
  std::string fileName;
  std::string contentType;
  bool operator==(const APIMimeBody&) const = default;
};

/// One multipart part of a Dictionary-face message, in the order the host reads it.
struct QBMimeBody {
  std::string contentType;
  std::string fieldName;
  std::string fileName;
  std::vector<std::byte> data;
  bool operator==(const QBMimeBody&) const = default;
};

}  // namespace qb

QB_ENUM(qb::LanguageCode, QB_CASE(qb::LanguageCode, en), QB_CASE(qb::LanguageCode, zhHans),
        QB_CASE(qb::LanguageCode, zhHant), QB_CASE(qb::LanguageCode, ja), QB_CASE(qb::LanguageCode, ko),
        QB_CASE(qb::LanguageCode, fr), QB_CASE(qb::LanguageCode, de), QB_CASE(qb::LanguageCode, es),
        QB_CASE(qb::LanguageCode, it), QB_CASE(qb::LanguageCode, pt), QB_CASE(qb::LanguageCode, ru),
        QB_CASE(qb::LanguageCode, ar), QB_CASE(qb::LanguageCode, nl), QB_CASE(qb::LanguageCode, pl),
        QB_CASE(qb::LanguageCode, tr), QB_CASE(qb::LanguageCode, sv));
QB_ENUM(qb::DeviceType, QB_CASE(qb::DeviceType, ios), QB_CASE(qb::DeviceType, android),
        QB_CASE(qb::DeviceType, web));
