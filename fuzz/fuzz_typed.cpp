// Typed face: arbitrary bytes decoded as every record and response. The streaming decoder must agree with
// the exact decoder over a parsed value (same record, or the same error), and a decoded record must
// encode and decode back to an equal record. Only DecodingError may escape a decode.
#include <cstdlib>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include "fuzz/Registry.hpp"

namespace {

void check(bool ok) {
  if (!ok) std::abort();
}

template <class T>
void fuzzRecord(std::string_view json) {
  std::optional<T> streamed;
  std::string streamError;
  try {
    streamed = qb::JSONDecoder().decode<T>(json);
  } catch (const qb::DecodingError& e) {
    streamError = e.what();
  }
  std::optional<T> exact;
  std::string exactError;
  bool parsed = true;
  try {
    const qb::JsonValue value = qb::parseJson(json);
    try {
      exact = qb::JsonValueDecoder().decode<T>(value);
    } catch (const qb::DecodingError& e) {
      exactError = e.what();
    }
  } catch (const qb::DecodingError& e) {
    parsed = false;
    exactError = e.what();
  }
  if (streamed) {
    // Values under keys the record does not read are skipped without being validated, so a reply that is
    // not JSON only there may decode on the fast path.
    check(!parsed || (exact && *exact == *streamed));
    const std::string text = qb::JSONEncoder().encode(*streamed);
    check(qb::JSONDecoder().decode<T>(text) == *streamed);
    check(qb::JsonValueDecoder().decode<T>(qb::JsonValueEncoder().encode(*streamed)) == *streamed);
  } else {
    check(!exact && streamError == exactError);
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 1) return 0;
  const std::string_view json(reinterpret_cast<const char*>(data + 1), size - 1);
  qb::fuzz::dispatch(qb::fuzz::TypedRecords{}, data[0], [&]<class T>() { fuzzRecord<T>(json); });
  return 0;
}
