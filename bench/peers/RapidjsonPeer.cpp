// RapidJSON: its DOM parser, then member reads from the value.
// RapidJSON picks its SIMD whitespace skipping from its own macros, not from the compiler's target.
#if defined(__SSE4_2__)
#define RAPIDJSON_SSE42
#endif
#include <rapidjson/document.h>

#include <algorithm>
#include <cstring>

#include "peers/DomReaders.hpp"
#include "peers/Peers.hpp"

namespace qb::bench::peers {
namespace {

// RapidJSON's pools take their blocks from operator new like every other variant, so the memory
// benchmark sees them.
struct NewAllocator {
  [[maybe_unused]] static const bool kNeedFree = true;
  void* Malloc(std::size_t size) { return size ? ::operator new(size) : nullptr; }
  void* Realloc(void* old, std::size_t oldSize, std::size_t newSize) {
    if (newSize == 0) {
      Free(old);
      return nullptr;
    }
    void* fresh = ::operator new(newSize);
    if (old) {
      std::memcpy(fresh, old, std::min(oldSize, newSize));
      Free(old);
    }
    return fresh;
  }
  static void Free(void* p) { ::operator delete(p); }
};

using Document = rapidjson::GenericDocument<rapidjson::UTF8<>, rapidjson::MemoryPoolAllocator<NewAllocator>, NewAllocator>;
using Value = Document::ValueType;

struct RapidjsonDom {
  using Value = peers::Value;
  static const Value* find(const Value& object, std::string_view key) {
    if (!object.IsObject()) fail("not an object");
    const Value name(rapidjson::StringRef(key.data(), static_cast<rapidjson::SizeType>(key.size())));
    const auto it = object.FindMember(name);
    return it == object.MemberEnd() ? nullptr : &it->value;
  }
  static bool isNull(const Value& v) { return v.IsNull(); }
  static void readString(const Value& v, std::string& out) {
    if (!v.IsString()) fail("not a string");
    out.assign(v.GetString(), v.GetStringLength());
  }
  static std::int64_t readInt64(const Value& v) {
    if (!v.IsInt64()) fail("not an integer");
    return v.GetInt64();
  }
  static bool readBool(const Value& v) {
    if (!v.IsBool()) fail("not a boolean");
    return v.GetBool();
  }
  static double readDouble(const Value& v) {
    if (!v.IsNumber()) fail("not a number");
    return v.GetDouble();
  }
  static std::size_t size(const Value& v) {
    if (!v.IsArray()) fail("not an array");
    return v.Size();
  }
  template <class F>
  static void forEachElement(const Value& v, F&& f) {
    if (!v.IsArray()) fail("not an array");
    for (const Value& element : v.GetArray()) f(element);
  }
  template <class F>
  static void forEachMember(const Value& v, F&& f) {
    if (!v.IsObject()) fail("not an object");
    for (const auto& member : v.GetObject()) {
      f(std::string_view(member.name.GetString(), member.name.GetStringLength()), member.value);
    }
  }
  static JsonValue toJson(const Value& v) {
    if (v.IsNull()) return nullptr;
    if (v.IsBool()) return v.GetBool();
    if (v.IsInt64()) return v.GetInt64();
    if (v.IsUint64()) return v.GetUint64();
    if (v.IsNumber()) return v.GetDouble();
    if (v.IsString()) return JsonValue(std::string_view(v.GetString(), v.GetStringLength()));
    if (v.IsArray()) {
      JsonList list;
      list.reserve(v.Size());
      for (const Value& element : v.GetArray()) list.push_back(toJson(element));
      return list;
    }
    JsonMap map;
    map.reserve(v.MemberCount());
    for (const auto& member : v.GetObject()) {
      map.insert_or_assign(std::string_view(member.name.GetString(), member.name.GetStringLength()),
                           toJson(member.value));
    }
    return map;
  }
};

}  // namespace

template <class T>
T decodeRapidjson(std::string_view json) {
  Document document;
  document.Parse(json.data(), json.size());
  if (document.HasParseError()) fail("not JSON");
  return DomReader<RapidjsonDom>::decode<T>(document);
}
QB_BENCH_PEER_DECODERS(decodeRapidjson)

}  // namespace qb::bench::peers
