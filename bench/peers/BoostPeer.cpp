// Boost.JSON: its own parser, then member reads from the value; and its serializer.
#include <boost/json/parse.hpp>
#include <boost/json/serialize.hpp>

#include "peers/DomReaders.hpp"
#include "peers/Peers.hpp"

namespace qb::bench::peers {
namespace {

struct BoostDom {
  using Value = boost::json::value;
  static const Value* find(const Value& object, std::string_view key) { return object.as_object().if_contains(key); }
  static bool isNull(const Value& v) { return v.is_null(); }
  static void readString(const Value& v, std::string& out) { out = v.as_string(); }
  static std::int64_t readInt64(const Value& v) { return v.as_int64(); }
  static bool readBool(const Value& v) { return v.as_bool(); }
  static double readDouble(const Value& v) { return v.to_number<double>(); }
  static std::size_t size(const Value& v) { return v.as_array().size(); }
  template <class F>
  static void forEachElement(const Value& v, F&& f) {
    for (const Value& element : v.as_array()) f(element);
  }
  template <class F>
  static void forEachMember(const Value& v, F&& f) {
    for (const auto& member : v.as_object()) f(member.key(), member.value());
  }
  static JsonValue toJson(const Value& v) { return v; }
};

}  // namespace

template <class T>
T decodeBoost(std::string_view json) {
  const boost::json::value root = boost::json::parse(json);
  return DomReader<BoostDom>::decode<T>(root);
}
QB_BENCH_PEER_DECODERS(decodeBoost)

std::size_t parseBoost(std::string_view json, boost::json::storage_ptr storage) {
  return boost::json::parse(json, std::move(storage)).as_object().size();
}

BoostWriter::BoostWriter(std::string_view json) : value_(boost::json::parse(json)) {}

std::string BoostWriter::write() const { return boost::json::serialize(value_); }

}  // namespace qb::bench::peers
