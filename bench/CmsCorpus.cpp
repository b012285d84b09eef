// The content catalogue's replies: one content page (get_cms_name) carrying everything a page can
// hold, and a list of 500 lighter content names of the same record (get_cms_name_list).
//
// Tag values are the part of these replies no record describes: each is a free JSON map whose "type"
// says what it holds (a text, a nested tag, an image, a reference to another name, a taxonomy name or a
// colour), so every decoder builds them as generic JSON values. The page mixes all six kinds, nests
// tags two deep and carries images with their copyright inside the values.
#include <array>
#include <cstdio>

#include "Corpus.hpp"

namespace qb::bench {
namespace {

constexpr std::uint64_t kSeed = 0x5eed'0002;

// The kinds of tag values, as the service numbers them.
enum Kind : std::int64_t { kString = 0, kTag = 1, kImage = 2, kReference = 3, kTaxonomy = 4, kColour = 5 };

constexpr std::array<std::string_view, 32> kTagNames = {
    "light",       "watering",   "soil",         "temperature", "humidity",  "fertilizer",   "pruning",
    "propagation", "repotting",  "toxicity",     "pests",       "diseases",  "flower_color", "leaf_color",
    "bloom_time",  "height",     "spread",       "hardiness",   "origin",    "edible_parts", "medicinal_use",
    "similar",     "habitat",    "lifespan",     "growth_rate", "fragrance", "symbolism",    "other_names",
    "gallery",     "companions", "distribution", "cultivars"};

constexpr std::array<std::string_view, 12> kRankNames = {"Kingdom", "Phylum",   "Class",   "Order",
                                                         "Family",  "Genus",    "Species", "Subspecies",
                                                         "Variety", "Cultivar", "Breed",   "Rock type"};

constexpr std::array<std::string_view, 12> kLatin = {
    "Monstera deliciosa",      "Epipremnum aureum",      "Ficus lyrata",
    "Sansevieria trifasciata", "Calathea orbifolia",     "Aloe vera",
    "Crassula ovata",          "Spathiphyllum wallisii", "Hedera helix",
    "Zamioculcas zamiifolia",  "Rosa \\u00d7 damascena", "Phalaenopsis amabilis"};

constexpr std::array<std::string_view, 6> kLicences = {"CC BY 4.0",    "CC BY-SA 4.0",        "CC0 1.0",
                                                       "CC BY-NC 2.0", "All rights reserved", "Public domain"};

// An id as the service writes them: a prefix and twelve hex digits.
std::string uid(Rng& rng, std::string_view prefix) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%.*s-%012llx", static_cast<int>(prefix.size()), prefix.data(),
                static_cast<unsigned long long>(rng.next() & 0xffffffffffffull));
  return buffer;
}

// A URL under one of the service's hosts; one in three written with escaped slashes, as some of its
// serialisers do.
std::string url(Rng& rng, std::string_view host, std::string_view path, std::string_view extension) {
  const bool escaped = rng.oneIn(3);
  const std::string_view slash = escaped ? "\\/" : "/";
  std::string out = "https:";
  out += slash;
  out += slash;
  out += host;
  out += slash;
  out += path;
  out += slash;
  out += uid(rng, "x").substr(2);
  out += extension;
  return out;
}

// A number in [0, 1] with two to four decimals, as the service writes scores and coordinates. Short
// enough that every parser of the comparison reads it to the same double.
std::string fraction(Rng& rng) {
  char buffer[16];
  switch (rng.between(0, 3)) {
    case 0: std::snprintf(buffer, sizeof buffer, "0.%02lld", static_cast<long long>(rng.between(1, 99))); break;
    case 1: std::snprintf(buffer, sizeof buffer, "0.%03lld", static_cast<long long>(rng.between(1, 999))); break;
    case 2: std::snprintf(buffer, sizeof buffer, "0.%04lld", static_cast<long long>(rng.between(1, 9999))); break;
    default: return rng.oneIn(2) ? "1" : "0";
  }
  return buffer;
}

void writeTitle(JsonText& j, Rng& rng) {
  j.beginObject().key("display_name").string(text(rng, 1, 4));
  j.key("light_mode_icon_url").string(url(rng, "icons.example.invalid", "light", ".png"));
  if (!rng.oneIn(4)) j.key("dark_mode_icon_url").string(url(rng, "icons.example.invalid", "dark", ".png"));
  j.endObject();
}

void writeCopyright(JsonText& j, Rng& rng) {
  j.beginObject().key("author").string(text(rng, 2, 3));
  if (rng.oneIn(2)) {
    j.key("cert_icons").beginArray();
    for (auto n = rng.between(1, 3); n > 0; --n) j.string(url(rng, "icons.example.invalid", "cert", ".png"));
    j.endArray();
  }
  j.key("cert_url").string(url(rng, "cert.example.invalid", "c", ""));
  j.key("detail_url").string(url(rng, "photos.example.invalid", "detail", ".html"));
  if (!rng.oneIn(3)) j.key("authorlink").string(url(rng, "photos.example.invalid", "people", ""));
  j.key("license").string(kLicences[rng.next() % kLicences.size()]);
  j.endObject();
}

void writeStaticUrl(JsonText& j, Rng& rng) {
  const std::string page = uid(rng, "p");
  j.beginObject();
  j.key("light_url").string("https://static.example.invalid/cms/" + page + "?mode=light&lang=de");
  j.key("dark_url").string("https://static.example.invalid/cms/" + page + "?mode=dark&lang=de");
  j.endObject();
}

void writeCommonNames(JsonText& j, Rng& rng, int most) {
  j.key("common_names").beginArray();
  for (auto n = rng.between(1, most); n > 0; --n) j.string(text(rng, 1, 3));
  j.endArray();
}

// A taxonomy name; `rank` is the TaxonomyType. As a tag value it carries its kind in "type" and its
// rank in "taxonomy_type", and no uid.
void writeTaxonomyName(JsonText& j, Rng& rng, std::int64_t rank, bool asTagValue) {
  j.beginObject();
  if (asTagValue) {
    j.key("type").number(kTaxonomy).key("taxonomy_type").number(rank);
  } else {
    j.key("uid").string(uid(rng, "t")).key("type").number(rank);
  }
  j.key("taxonomy_type_name").string(kRankNames[static_cast<std::size_t>(rank) % kRankNames.size()]);
  j.key("preferred_name").string(text(rng, 1, 3));
  j.key("latin_name").string(kLatin[rng.next() % kLatin.size()]);
  if (!rng.oneIn(4)) writeCommonNames(j, rng, 4);
  j.endObject();
}

void writeTag(JsonText& j, Rng& rng, std::string_view name, int values, int depth);

// An image; as a tag value or in a list of images. Some carry an illustration note, which the Typed
// face does not read, and some a tag of their own.
void writeImage(JsonText& j, Rng& rng, bool withTags) {
  j.beginObject().key("type").number(kImage);
  j.key("image_url").string(url(rng, "img.example.invalid", "cms", ".jpg"));
  if (!rng.oneIn(5)) {
    j.key("image_copyright");
    writeCopyright(j, rng);
  }
  if (withTags && rng.oneIn(3)) {
    j.key("tags").beginArray();
    writeTag(j, rng, kTagNames[rng.next() % kTagNames.size()], static_cast<int>(rng.between(1, 3)), 2);
    j.endArray();
  }
  if (rng.oneIn(4)) j.key("illustration").string(text(rng, 2, 6));
  if (rng.oneIn(2)) j.key("comment").string(text(rng, 2, 10));
  if (rng.oneIn(2)) j.key("similarity").literal(fraction(rng));
  j.endObject();
}

// A reference to another content name, with enough of it to draw a card.
void writeReference(JsonText& j, Rng& rng) {
  j.beginObject().key("type").number(kReference).key("uid").string(uid(rng, "cn"));
  j.key("name");
  writeTaxonomyName(j, rng, 6, false);
  if (rng.oneIn(2)) {
    j.key("taxonomy_parent");
    writeTaxonomyName(j, rng, 5, false);
  }
  j.key("taxonomy_family_parent");
  writeTaxonomyName(j, rng, 4, false);
  j.key("main_image");
  writeImage(j, rng, false);
  j.endObject();
}

// One tag value of the given kind. Nested tags hold values of the other kinds and, above `depth` 1,
// nested tags again.
void writeTagValue(JsonText& j, Rng& rng, Kind kind, int depth) {
  switch (kind) {
    case kString:
      j.beginObject().key("type").number(kString).key("value").string(text(rng, 1, 14));
      if (rng.oneIn(2)) j.key("key").string(text(rng, 1, 2));
      j.endObject();
      break;
    case kTag:
      writeTag(j, rng, kTagNames[rng.next() % kTagNames.size()], static_cast<int>(rng.between(2, 5)), depth + 1);
      break;
    case kImage: writeImage(j, rng, false); break;
    case kReference: writeReference(j, rng); break;
    case kTaxonomy: writeTaxonomyName(j, rng, rng.between(0, 9), true); break;
    case kColour:
      j.beginObject().key("type").number(kColour).key("color").number(rng.between(0, 15)).endObject();
      break;
  }
}

// The kind of the next tag value: texts and colours are the most common, references the rarest.
Kind pickKind(Rng& rng, int depth) {
  const auto roll = rng.between(0, 99);
  if (roll < 35) return kString;
  if (roll < 50) return kColour;
  if (roll < 68) return kImage;
  if (roll < 79) return kTaxonomy;
  if (roll < 88) return kReference;
  return depth < 2 ? kTag : kString;
}

// A tag as a record and as a nested tag value alike (the value is the same map with "type" 1). Its
// own "type" is the kind of its first value.
void writeTag(JsonText& j, Rng& rng, std::string_view name, int values, int depth) {
  std::vector<Kind> kinds;
  for (int i = 0; i < values; ++i) kinds.push_back(pickKind(rng, depth));
  j.beginObject().key("type").number(depth > 0 ? kTag : (kinds.empty() ? kString : kinds.front()));
  j.key("tag_name").string(name);
  if (!rng.oneIn(5)) j.key("display_tag_name").string(text(rng, 1, 3));
  if (rng.oneIn(2)) {
    j.key("cms_title");
    writeTitle(j, rng);
  }
  j.key("tag_values").beginArray();
  for (Kind kind : kinds) writeTagValue(j, rng, kind, depth);
  j.endArray();
  if (rng.oneIn(3)) j.key("source_url").string(url(rng, "sources.example.invalid", "ref", ".html"));
  if (rng.oneIn(4)) j.key("with_edible_or_medical_info").literal(rng.oneIn(2) ? "true" : "false");
  j.endObject();
}

// `count` tags with distinct names from the list, `few` to `many` values each.
std::vector<std::string_view> writeTags(JsonText& j, Rng& rng, std::string_view key, std::size_t count, int few,
                                        int many) {
  std::vector<std::string_view> names;
  j.key(key).beginArray();
  for (std::size_t i = 0; i < count; ++i) {
    const std::string_view name = kTagNames[(i * 7 + rng.next() % 3) % kTagNames.size()];
    names.push_back(name);
    writeTag(j, rng, name, static_cast<int>(rng.between(few, many)), 0);
  }
  j.endArray();
  return names;
}

void writeLayouts(JsonText& j, Rng& rng, std::string_view key, std::size_t count,
                  const std::vector<std::string_view>& tagNames) {
  j.key(key).beginArray();
  for (std::size_t i = 0; i < count; ++i) {
    j.beginObject().key("name").string(text(rng, 1, 2));
    j.key("type").number(rng.between(0, 2)).key("type_set").number(rng.between(0, 11));
    if (!tagNames.empty()) {
      j.key("tag_names").beginArray();
      for (auto n = rng.between(1, 6); n > 0; --n) j.string(tagNames[rng.next() % tagNames.size()]);
      j.endArray();
      if (rng.oneIn(3)) {
        j.key("sub_page_tag_names").beginArray();
        for (auto n = rng.between(1, 8); n > 0; --n) j.string(tagNames[rng.next() % tagNames.size()]);
        j.endArray();
      }
    }
    if (rng.oneIn(2)) {
      j.key("cms_title");
      writeTitle(j, rng);
    }
    j.endObject();
  }
  j.endArray();
}

void writeImages(JsonText& j, Rng& rng, std::string_view key, std::size_t count, bool withTags) {
  j.key(key).beginArray();
  for (std::size_t i = 0; i < count; ++i) writeImage(j, rng, withTags);
  j.endArray();
}

// Free-form properties of a name summary, which no decoder interprets.
void writeProperties(JsonText& j, Rng& rng) {
  j.key("properties").beginObject();
  j.key("toxic").literal(rng.oneIn(2) ? "true" : "false");
  j.key("difficulty").number(rng.between(1, 5));
  j.key("height_m").beginArray().literal(fraction(rng)).literal(fraction(rng)).endArray();
  j.key("note").string(text(rng, 2, 8));
  if (rng.oneIn(3)) j.key("season").literal("null");
  j.endObject();
}

void writeChild(JsonText& j, Rng& rng) {
  j.beginObject().key("uid").string(uid(rng, "cn"));
  j.key("taxonomy_type_name").string(kRankNames[6]);
  j.key("preferred_name").string(text(rng, 1, 3));
  j.key("main_image_url").string(url(rng, "img.example.invalid", "cms", ".jpg"));
  j.key("latin_name").string(kLatin[rng.next() % kLatin.size()]);
  j.key("cms_static_url");
  writeStaticUrl(j, rng);
  if (!rng.oneIn(4)) writeProperties(j, rng);
  if (rng.oneIn(2)) writeTags(j, rng, "cms_tags", static_cast<std::size_t>(rng.between(1, 2)), 1, 3);
  j.endObject();
}

void writeVideo(JsonText& j, Rng& rng) {
  // Topic 7 is one this client does not know yet; it reads as unknown.
  j.beginObject().key("video_classification").number(rng.oneIn(8) ? 7 : rng.between(0, 3));
  j.key("title").string(text(rng, 2, 6));
  j.key("image_url").string(url(rng, "video.example.invalid", "poster", ".jpg"));
  j.key("video_url").string(url(rng, "video.example.invalid", "v", ".mp4"));
  j.endObject();
}

void writeArticle(JsonText& j, Rng& rng) {
  j.beginObject().key("titles").beginArray().string(text(rng, 3, 8)).string(text(rng, 2, 5)).endArray();
  j.key("short_title").string(text(rng, 1, 3));
  j.key("cover_image");
  writeImage(j, rng, false);
  j.key("summary").string(text(rng, 20, 60));
  j.key("additional_summary").string(text(rng, 10, 30));
  j.key("author").string(text(rng, 2, 3));
  j.key("url").string(url(rng, "articles.example.invalid", "a", ".html"));
  j.key("dark_url").string(url(rng, "articles.example.invalid", "a-dark", ".html"));
  writeTags(j, rng, "tags", 3, 2, 5);
  j.endObject();
}

void writeRegions(JsonText& j, Rng& rng, std::size_t count) {
  j.key("diagnose_detect").beginObject().key("regions").beginArray();
  for (std::size_t i = 0; i < count; ++i) {
    j.beginObject().key("region").beginArray();
    for (int corner = 0; corner < 4; ++corner) j.literal(fraction(rng));
    j.endArray();
    j.key("detection_score").literal(fraction(rng)).key("strategy_score").literal(fraction(rng));
    j.endObject();
  }
  j.endArray().endObject();
}

void writeDisease(JsonText& j, Rng& rng) {
  j.beginObject().key("uid").string(uid(rng, "d"));
  j.key("article");
  writeArticle(j, rng);
  j.key("desc").string(text(rng, 20, 50));
  j.key("disease_image_url").string(url(rng, "img.example.invalid", "disease", ".jpg"));
  const auto tagNames = writeTags(j, rng, "cms_tags", 8, 2, 8);
  writeLayouts(j, rng, "cms_layouts", 6, tagNames);
  j.key("common_name").string(text(rng, 1, 3));
  j.key("symptom_summary").string(text(rng, 10, 30));
  j.key("cms_static_url");
  writeStaticUrl(j, rng);
  j.key("disease_level").number(rng.between(0, 2));
  j.key("related_disease_name").beginObject().key("uid").string(uid(rng, "d"));
  j.key("common_name").string(text(rng, 1, 3));
  const auto relatedNames = writeTags(j, rng, "cms_tags", 3, 1, 4);
  writeLayouts(j, rng, "cms_layouts", 3, relatedNames);
  j.key("cms_static_url");
  writeStaticUrl(j, rng);
  j.endObject();
  writeRegions(j, rng, 24);
  writeImages(j, rng, "matched_similar_images", 6, true);
  j.endObject();
}

// The members of a content name; the page and the list differ only in how much each holds.
struct NameSize {
  std::size_t taxonomies, children, tags;
  int fewValues, manyValues;
  std::size_t layouts, similarImages, videos;
  bool confusion, disease;
};

void writeName(JsonText& j, Rng& rng, const NameSize& size) {
  j.beginObject().key("uid").string(uid(rng, "cn"));
  j.key("name");
  writeTaxonomyName(j, rng, 6, false);
  j.key("taxonomy_parent");
  writeTaxonomyName(j, rng, 5, false);
  j.key("taxonomy_family_parent");
  writeTaxonomyName(j, rng, 4, false);
  j.key("taxonomies").beginArray();
  for (std::size_t rank = 0; rank < size.taxonomies; ++rank)
    writeTaxonomyName(j, rng, static_cast<std::int64_t>(rank), false);
  j.endArray();
  if (size.children > 0) {
    j.key("children").beginArray();
    for (std::size_t i = 0; i < size.children; ++i) writeChild(j, rng);
    j.endArray();
  }
  const auto tagNames = writeTags(j, rng, "tags", size.tags, size.fewValues, size.manyValues);
  writeLayouts(j, rng, "layouts", size.layouts, tagNames);
  j.key("main_image");
  writeImage(j, rng, true);
  writeImages(j, rng, "matched_similar_images", size.similarImages, true);
  if (size.confusion) {
    j.key("confusion");
    writeTag(j, rng, "similar", static_cast<int>(rng.between(4, 8)), 0);
  }
  if (size.disease) {
    j.key("disease");
    writeDisease(j, rng);
  }
  j.key("cms_static_url");
  writeStaticUrl(j, rng);
  if (size.videos > 0) {
    j.key("videos").beginArray();
    for (std::size_t i = 0; i < size.videos; ++i) writeVideo(j, rng);
    j.endArray();
  }
  j.endObject();
}

// One content page, as the app opens it: about 200 KB.
Reply getCmsName() {
  Rng rng(kSeed);
  JsonText j;
  j.beginObject().key("cms_name");
  writeName(j, rng,
            {.taxonomies = 7,
             .children = 24,
             .tags = 48,
             .fewValues = 2,
             .manyValues = 12,
             .layouts = 30,
             .similarImages = 12,
             .videos = 8,
             .confusion = true,
             .disease = true});
  j.endObject();
  return {"get_cms_name", "get_cms_name", true, j.take()};
}

// A list of content names, each with a few tags, layouts and images.
Reply getCmsNameList(int count) {
  Rng rng(kSeed + 1);
  JsonText j;
  j.beginObject().key("cms_name_list").beginArray();
  for (int i = 0; i < count; ++i) {
    writeName(j, rng,
              {.taxonomies = static_cast<std::size_t>(rng.between(2, 4)),
               .children = 0,
               .tags = static_cast<std::size_t>(rng.between(2, 4)),
               .fewValues = 1,
               .manyValues = 4,
               .layouts = static_cast<std::size_t>(rng.between(2, 4)),
               .similarImages = static_cast<std::size_t>(rng.between(0, 2)),
               .videos = rng.oneIn(5) ? 1u : 0u,
               .confusion = false,
               .disease = false});
  }
  j.endArray().endObject();
  return {"get_cms_name_list", "get_cms_name_list/" + std::to_string(count), true, j.take()};
}

}  // namespace

std::vector<Reply> cmsReplies() {
  std::vector<Reply> replies;
  replies.push_back(getCmsName());
  replies.push_back(getCmsNameList(500));
  return replies;
}

}  // namespace qb::bench
