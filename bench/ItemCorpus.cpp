// The item collection's reply: list_my_collections, the user's whole collection in one reply and the
// largest reply the app receives. 10 000 items for the timed benchmarks, 20 for a small reply, and
// 125 000 (108 MB) for the memory figures alone.
//
// Each item carries the four required members, an image set with its five addresses (the signed one
// long, with a query; now and then one is missing or null) and the optional members on the share of
// items that have them in a real collection: most are identified (a content name and its Latin name),
// some have a disease, a name or note of the user's own, the server's opaque extra data (JSON written
// into a text, so full of escaped quotes) and a place, which is 0, 0 on some.
#include <array>
#include <bit>
#include <cstdio>
#include <cstdlib>

#include "Corpus.hpp"

namespace qb::bench {
namespace {

constexpr std::uint64_t kSeed = 0x5eed'0003;
// Item ids from here up do not fit a double exactly; two items in three have one.
constexpr std::int64_t kBigId = 9007199254740993;

constexpr std::array<std::string_view, 12> kLatin = {
    "Monstera deliciosa",      "Epipremnum aureum",      "Ficus lyrata",
    "Sansevieria trifasciata", "Calathea orbifolia",     "Aloe vera",
    "Crassula ovata",          "Spathiphyllum wallisii", "Hedera helix",
    "Zamioculcas zamiifolia",  "Rosa \\u00d7 damascena", "Phalaenopsis amabilis"};

// True `percent` times in a hundred.
bool chance(Rng& rng, std::int64_t percent) { return rng.between(0, 99) < percent; }

// `count` random characters of `alphabet`, whose size is a power of two.
template <std::size_t N>
std::string randomText(Rng& rng, const char (&alphabet)[N], int count) {
  constexpr std::size_t kSize = N - 1;  // without the terminating zero
  static_assert(std::has_single_bit(kSize));
  constexpr int kPerWord = 64 / std::bit_width(kSize - 1);
  std::string out;
  std::uint64_t bits = 0;
  for (int i = 0; i < count; ++i, bits /= kSize) {
    if (i % kPerWord == 0) bits = rng.next();
    out += alphabet[bits % kSize];
  }
  return out;
}

std::string hex(Rng& rng, int digits) { return randomText(rng, "0123456789abcdef", digits); }

// URL-safe base64, as signatures are written.
std::string base64(Rng& rng, int digits) {
  return randomText(rng, "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789-_", digits);
}

// A content-catalogue id, as the content replies write them.
std::string uid(Rng& rng, std::string_view prefix) { return std::string(prefix) + "-" + hex(rng, 12); }

// Seconds since 1970 with milliseconds, as the service writes shoot_at.
std::string timestamp(Rng& rng) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%lld.%03lld", static_cast<long long>(rng.between(1500000000, 1750000000)),
                static_cast<long long>(rng.between(0, 999)));
  return buffer;
}

// Degrees with six decimals, or 0 written as the integer 0. Short enough that every parser of the
// comparison reads it to the same double.
std::string degrees(Rng& rng, std::int64_t limit, bool zero) {
  if (zero) return "0";
  const std::int64_t micro = rng.between(-limit * 1000000, limit * 1000000);
  char buffer[24];
  std::snprintf(buffer, sizeof buffer, "%s%lld.%06lld", micro < 0 ? "-" : "",
                static_cast<long long>(std::abs(micro) / 1000000), static_cast<long long>(std::abs(micro) % 1000000));
  return buffer;
}

// An optional member on `percent` items in a hundred; one in four of the others carries the key with a
// null instead of leaving it out.
template <class F>
void optionalMember(JsonText& j, Rng& rng, std::string_view key, std::int64_t percent, F&& value) {
  if (chance(rng, percent)) {
    j.key(key);
    value();
  } else if (rng.oneIn(4)) {
    j.key(key).literal("null");
  }
}

// The image set: four sizes of the photograph under the item's digest, one in three written with escaped
// slashes as some serialisers write them, and a signed address that expires.
void writeImage(JsonText& j, Rng& rng) {
  const std::string slash = rng.oneIn(3) ? "\\/" : "/";
  const std::string base = "https:" + slash + slash + "img.example.invalid" + slash + "item" + slash +
                           std::to_string(rng.between(2019, 2025)) + slash + hex(rng, 32);
  j.beginObject();
  optionalMember(j, rng, "icon_url", 98, [&] { j.string(base + "_120x120.jpg"); });
  optionalMember(j, rng, "thumbnail_url", 98, [&] { j.string(base + "_480x480.jpg"); });
  optionalMember(j, rng, "image_url", 98, [&] { j.string(base + "_1080.jpg"); });
  optionalMember(j, rng, "original_url", 90, [&] { j.string(base + ".jpg"); });
  optionalMember(j, rng, "signature_image_url", 85, [&] {
    j.string("https:" + slash + slash + "signed.example.invalid" + slash + "item" + slash + hex(rng, 32) +
             ".jpg?Expires=" + std::to_string(rng.between(1700000000, 1800000000)) + "&Signature=" + base64(rng, 43) +
             "&Key-Pair-Id=K" + base64(rng, 13));
  });
  j.endObject();
}

void writeItem(JsonText& j, Rng& rng, std::int64_t index) {
  const std::int64_t id = rng.oneIn(3) ? rng.between(1, 90000000) : kBigId + index * 7919;
  const bool identified = chance(rng, 92);
  const auto latin = kLatin[rng.next() % kLatin.size()];
  j.beginObject().key("item_id").number(id);
  j.key("item_image");
  writeImage(j, rng);
  j.key("shoot_at").literal(timestamp(rng));
  j.key("name").string(identified ? text(rng, 1, 4) : "Unknown");
  if (identified) {
    j.key("cms_name_uid").string(uid(rng, "cn"));
  } else if (rng.oneIn(2)) {
    j.key("cms_name_uid").literal("null");
  }
  optionalMember(j, rng, "disease_uid", 10, [&] { j.string(uid(rng, "d")); });
  if (identified && !rng.oneIn(10)) j.key("latin_name").string(latin);
  optionalMember(j, rng, "custom_name", 15, [&] { j.string(text(rng, 1, 3)); });
  optionalMember(j, rng, "custom_note", 8, [&] { j.string(text(rng, 4, 30)); });
  optionalMember(j, rng, "properties", 40, [&] {
    j.string(R"({\"source\":\")" + std::string(rng.oneIn(3) ? "gallery" : "camera") +
             R"(\",\"width\":3024,\"height\":4032,\"app_version\":\"3.)" + std::to_string(rng.between(0, 20)) +
             R"(\"})");
  });
  optionalMember(j, rng, "cms_cache_business_fields", 60, [&] {
    j.string(R"({\"latin_name\":\")" + std::string(latin) + R"(\",\"rank\":)" + std::to_string(rng.between(5, 8)) +
             R"(,\"toxic\":)" + (rng.oneIn(4) ? "true" : "false") + R"(,\"cached_at\":)" +
             std::to_string(rng.between(1700000000, 1750000000)) + "}");
  });
  if (chance(rng, 70)) {
    // A place the phone could not fix is written as 0, 0.
    const bool zero = rng.oneIn(10);
    j.key("lng").literal(degrees(rng, 180, zero));
    j.key("lat").literal(degrees(rng, 90, zero));
  } else if (rng.oneIn(4)) {
    j.key("lng").literal("null").key("lat").literal("null");
  }
  j.endObject();
}

Reply listMyCollections(int count, bool memoryOnly) {
  Rng rng(kSeed + static_cast<std::uint64_t>(count));
  JsonText j;
  j.beginObject().key("items").beginArray();
  for (int i = 0; i < count; ++i) writeItem(j, rng, i);
  j.endArray().endObject();
  return {"list_my_collections", "list_my_collections/" + std::to_string(count), count >= 10000, j.take(), memoryOnly};
}

}  // namespace

std::vector<Reply> itemReplies() {
  std::vector<Reply> replies;
  replies.push_back(listMyCollections(20, false));
  replies.push_back(listMyCollections(10000, false));
  replies.push_back(listMyCollections(125000, true));
  return replies;
}

}  // namespace qb::bench
