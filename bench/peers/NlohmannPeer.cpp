// nlohmann::json: its parser, then member reads from the value; and dump().
#include <nlohmann/json.hpp>

#include "peers/DomReaders.hpp"
#include "peers/Peers.hpp"

namespace qb::bench::peers {
namespace {

struct NlohmannDom {
  using Value = nlohmann::json;
  static const Value* find(const Value& object, std::string_view key) {
    if (!object.is_object()) fail("not an object");
    const auto it = object.find(key);
    return it == object.end() ? nullptr : &*it;
  }
  static bool isNull(const Value& v) { return v.is_null(); }
  static void readString(const Value& v, std::string& out) { out = v.get_ref<const std::string&>(); }
  static std::int64_t readInt64(const Value& v) {
    if (v.is_number_unsigned() && v.get<std::uint64_t>() > static_cast<std::uint64_t>(INT64_MAX)) fail("too big");
    if (!v.is_number_integer()) fail("not an integer");
    return v.get<std::int64_t>();
  }
  static bool readBool(const Value& v) { return v.get<bool>(); }
  static double readDouble(const Value& v) {
    if (!v.is_number()) fail("not a number");
    return v.get<double>();
  }
  static std::size_t size(const Value& v) {
    if (!v.is_array()) fail("not an array");
    return v.size();
  }
  template <class F>
  static void forEachElement(const Value& v, F&& f) {
    if (!v.is_array()) fail("not an array");
    for (const Value& element : v) f(element);
  }
  template <class F>
  static void forEachMember(const Value& v, F&& f) {
    if (!v.is_object()) fail("not an object");
    for (const auto& [key, element] : v.items()) f(key, element);
  }
  static JsonValue toJson(const Value& v) {
    switch (v.type()) {
      case nlohmann::json::value_t::null: return nullptr;
      case nlohmann::json::value_t::boolean: return v.get<bool>();
      case nlohmann::json::value_t::number_integer: return v.get<std::int64_t>();
      case nlohmann::json::value_t::number_unsigned: {
        const auto u = v.get<std::uint64_t>();
        return u <= static_cast<std::uint64_t>(INT64_MAX) ? JsonValue(static_cast<std::int64_t>(u)) : JsonValue(u);
      }
      case nlohmann::json::value_t::number_float: return v.get<double>();
      case nlohmann::json::value_t::string: return JsonValue(v.get_ref<const std::string&>());
      case nlohmann::json::value_t::array: {
        JsonList list;
        list.reserve(v.size());
        for (const Value& element : v) list.push_back(toJson(element));
        return list;
      }
      case nlohmann::json::value_t::object: {
        JsonMap map;
        map.reserve(v.size());
        for (const auto& [key, element] : v.items()) map.insert_or_assign(key, toJson(element));
        return map;
      }
      default: fail("not JSON");
    }
  }
};

}  // namespace

template <class T>
T decodeNlohmann(std::string_view json) {
  const nlohmann::json root = nlohmann::json::parse(json.begin(), json.end());
  return DomReader<NlohmannDom>::decode<T>(root);
}
QB_BENCH_PEER_DECODERS(decodeNlohmann)

std::size_t parseNlohmann(std::string_view json) { return nlohmann::json::parse(json.begin(), json.end()).size(); }

struct NlohmannWriter::Value {
  nlohmann::json json;
};

NlohmannWriter::NlohmannWriter(std::string_view json)
    : value_(new Value{nlohmann::json::parse(json.begin(), json.end())}) {}

NlohmannWriter::~NlohmannWriter() { delete value_; }

std::string NlohmannWriter::write() const { return value_->json.dump(); }

}  // namespace qb::bench::peers
