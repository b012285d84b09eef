// qb::JSONDecoder: reply bytes straight into Typed-face records.
#pragma once

#include <QBComponentAPI/frame/Codable.hpp>
#include <QBComponentAPI/frame/Date.hpp>
#include <QBComponentAPI/frame/PaddedBytes.hpp>
#include <string>
#include <string_view>

namespace qb {

class JSONDecoder {
 public:
  DateStrategy dateStrategy = DateStrategy::secondsSince1970;

  /// Decodes one T from JSON text (UTF-8). Members are filled straight from the parser, without an
  /// intermediate document. Throws DecodingError: keyNotFound, valueNotFound or typeMismatch for the first
  /// failing field in declared order, with its coding path ("config.legal_config.privacy_policy_version");
  /// dataCorrupted for text that is not JSON, an unknown enumeration value or nesting past kMaxJsonDepth.
  /// Unknown keys are skipped. The decoding of each record type is instantiated by that record's .cpp
  /// file (QB_TYPED_DEFINE), so this header stays free of the parser's.
  template <class T>
  T decode(JsonText json) const;
};

}  // namespace qb
