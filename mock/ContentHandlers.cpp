// The mock service's content catalogue: a small seeded catalogue, the same on every start, whose every
// record decodes in both faces. Content names carry their taxonomy, layouts, tags with values of all six
// kinds, articles, videos and, for one name, a disease with detection regions.
#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <memory>
#include <vector>

#include "mock/Handlers.hpp"

namespace qb::mock {
namespace {

constexpr const char* kImages = "https://cdn.example.invalid/";

JsonMap staticUrl(std::string_view page) {
  const std::string base = "https://pages.example.invalid/" + std::string(page);
  return {{"light_url", base + "?mode=light"}, {"dark_url", base + "?mode=dark"}};
}

JsonMap title(const std::string& name) {
  return {{"display_name", name},
          {"light_mode_icon_url", std::string(kImages) + "icons/" + name + "-light.png"},
          {"dark_mode_icon_url", std::string(kImages) + "icons/" + name + "-dark.png"}};
}

// One seeded species: its names and its place in the taxonomy.
struct Species {
  const char* uid;
  const char* preferred;
  const char* latin;
  const char* genus;
  const char* family;
};

const Species kSpecies[] = {
    {"monstera-deliciosa", "Swiss cheese plant", "Monstera deliciosa", "Monstera", "Araceae"},
    {"epipremnum-aureum", "Golden pothos", "Epipremnum aureum", "Epipremnum", "Araceae"},
    {"ficus-lyrata", "Fiddle-leaf fig", "Ficus lyrata", "Ficus", "Moraceae"},
    {"sansevieria-trifasciata", "Snake plant", "Sansevieria trifasciata", "Sansevieria", "Asparagaceae"},
    {"calathea-orbifolia", "Prayer plant", "Calathea orbifolia", "Calathea", "Marantaceae"},
};

// TaxonomyType raw values used here: family 4, genus 5, species 6.
JsonMap taxonomyName(const std::string& uid, std::int64_t type, const char* typeName, const std::string& preferred,
                     const std::string& latin) {
  return {{"uid", uid},
          {"type", type},
          {"taxonomy_type_name", typeName},
          {"preferred_name", preferred},
          {"latin_name", latin},
          {"common_names", JsonList{JsonValue(preferred)}}};
}

JsonMap speciesName(const Species& s) { return taxonomyName(s.uid, 6, "Species", s.preferred, s.latin); }
JsonMap genusName(const Species& s) {
  return taxonomyName(std::string("genus-") + s.genus, 5, "Genus", s.genus, s.genus);
}
JsonMap familyName(const Species& s) {
  return taxonomyName(std::string("family-") + s.family, 4, "Family", s.family, s.family);
}

JsonMap image(const std::string& path, double similarity) {
  return {{"type", 2},
          {"image_url", std::string(kImages) + path},
          {"image_copyright", JsonMap{{"author", "Mock Botanist"},
                                      {"cert_icons", JsonList{JsonValue(std::string(kImages) + "cc-by.png")}},
                                      {"license", "CC BY 4.0"},
                                      {"authorlink", "https://people.example.invalid/mock"}}},
          {"illustration", "photo"},
          {"similarity", similarity}};
}

JsonMap simpleName(const Species& s) {
  return {{"uid", s.uid},
          {"taxonomy_type_name", "Species"},
          {"preferred_name", s.preferred},
          {"main_image_url", std::string(kImages) + s.uid + "/main.jpg"},
          {"latin_name", s.latin},
          {"cms_static_url", staticUrl(std::string("names/") + s.uid)},
          {"properties", JsonMap{{"toxic_to_pets", s.family == std::string("Araceae")}}}};
}

// A tag with one value of each of the six kinds: text, nested tag, image, content name, taxonomy name,
// colour (CmsTagValueType 0..5).
JsonMap richTag(const Species& s) {
  JsonList values;
  values.push_back(JsonMap{{"type", 0}, {"value", "Bright, indirect light"}, {"key", "Light"}});
  values.push_back(JsonMap{
      {"type", 1}, {"tag_name", "watering"}, {"tag_values", JsonList{JsonMap{{"type", 0}, {"value", "Weekly"}}}}});
  values.push_back(image(std::string(s.uid) + "/leaf.jpg", 0.92));
  values.push_back(JsonMap{{"type", 3},
                           {"uid", s.uid},
                           {"name", speciesName(s)},
                           {"taxonomy_parent", genusName(s)},
                           {"main_image", image(std::string(s.uid) + "/main.jpg", 1.0)}});
  values.push_back(JsonMap{{"type", 4},
                           {"taxonomy_type", 5},
                           {"taxonomy_type_name", "Genus"},
                           {"preferred_name", s.genus},
                           {"latin_name", s.genus}});
  values.push_back(JsonMap{{"type", 5}, {"color", 2}});
  return {{"type", 0},
          {"tag_name", "care"},
          {"display_tag_name", "Care"},
          {"cms_title", title("care")},
          {"tag_values", std::move(values)},
          {"source_url", "https://sources.example.invalid/care"},
          {"with_edible_or_medical_info", false}};
}

JsonMap textTag(const std::string& name, const std::string& text) {
  return {{"type", 0}, {"tag_name", name}, {"tag_values", JsonList{JsonMap{{"type", 0}, {"value", text}}}}};
}

JsonMap layout(const std::string& name, std::int64_t typeSet, JsonList tagNames) {
  return {{"name", name},
          {"type", 0},
          {"type_set", typeSet},
          {"tag_names", std::move(tagNames)},
          {"cms_title", title(name)}};
}

JsonMap article(const Species& s, const std::string& topic) {
  return {{"titles", JsonList{JsonValue(topic + " of " + s.preferred)}},
          {"short_title", topic},
          {"cover_image", image(std::string(s.uid) + "/cover.jpg", 1.0)},
          {"summary", "All about " + topic + "."},
          {"author", "Mock Botanist"},
          {"url", "https://articles.example.invalid/" + std::string(s.uid) + "/" + topic},
          {"tags", JsonList{textTag("topic", topic)}}};
}

JsonMap disease(const Species& s) {
  const JsonMap related{{"uid", "leaf-spot"}, {"common_name", "Leaf spot"}, {"cms_static_url", staticUrl("leaf-spot")}};
  return {{"uid", "root-rot"},
          {"article", article(s, "root rot")},
          {"desc", "A fungal disease of overwatered roots."},
          {"common_name", "Root rot"},
          {"symptom_summary", "Yellow, drooping leaves"},
          {"cms_static_url", staticUrl("diseases/root-rot")},
          {"disease_level", 2},
          {"related_disease_name", related},
          {"diagnose_detect", JsonMap{{"regions", JsonList{JsonMap{{"region", JsonList{0.12, 0.2, 0.55, 0.61}},
                                                                   {"detection_score", 0.93},
                                                                   {"strategy_score", 0.71}}}}}},
          {"matched_similar_images", JsonList{image("diseases/root-rot.jpg", 0.88)}}};
}

JsonMap contentNameAt(std::size_t index) {
  const Species& s = kSpecies[index];
  JsonList children;
  for (const Species& other : kSpecies) {
    if (&other != &s && other.family == std::string(s.family)) children.push_back(simpleName(other));
  }
  JsonMap name{{"uid", s.uid},
               {"name", speciesName(s)},
               {"taxonomy_parent", genusName(s)},
               {"taxonomy_family_parent", familyName(s)},
               {"taxonomies", JsonList{familyName(s), genusName(s), speciesName(s)}},
               {"children", std::move(children)},
               {"layouts", JsonList{layout("overview", 6, JsonList{"care"}), layout("facts", 2, JsonList{"height"})}},
               {"tags", JsonList{richTag(s), textTag("height", "Up to 3 m")}},
               {"main_image", image(std::string(s.uid) + "/main.jpg", 1.0)},
               {"matched_similar_images", JsonList{image(std::string(s.uid) + "/similar.jpg", 0.81)}},
               {"cms_static_url", staticUrl(std::string("names/") + s.uid)},
               {"videos", JsonList{JsonMap{{"video_classification", 2},
                                           {"title", "Watering " + std::string(s.preferred)},
                                           {"image_url", std::string(kImages) + s.uid + "/video.jpg"},
                                           {"video_url", "https://video.example.invalid/" + std::string(s.uid)}}}}};
  if (index == 0) {
    name["confusion"] = textTag("confused_with", "Thaumatophyllum");
    name["disease"] = disease(s);
  }
  return name;
}

std::size_t speciesIndex(std::string_view uid) {
  for (std::size_t i = 0; i < std::size(kSpecies); ++i) {
    if (uid == kSpecies[i].uid) return i;
  }
  throw Failure{404, "not_found", "no content name " + std::string(uid)};
}

// A list parameter: the Dictionary face sends it as JSON text, the Typed face as an array; both arrive
// here as a list.
std::vector<std::string> uids(const Call& call, std::string_view key) {
  const JsonValue* value = call.params.if_contains(key);
  if (!value || !value->is_array()) throw Failure{400, "invalid_parameter", std::string(key) + " must be a list"};
  std::vector<std::string> out;
  for (const JsonValue& uid : value->get_array()) {
    if (!uid.is_string()) throw Failure{400, "invalid_parameter", std::string(key) + " must hold texts"};
    out.emplace_back(uid.get_string());
  }
  return out;
}

JsonList simpleItems() {
  JsonList items;
  for (const Species& s : kSpecies) {
    items.push_back(JsonMap{{"uid", s.uid},
                            {"main_image_url", std::string(kImages) + s.uid + "/main.jpg"},
                            {"common_name", s.preferred},
                            {"latin_name", s.latin},
                            {"fields", JsonList{JsonMap{{"key", "Family"}, {"value", s.family}}}}});
  }
  return items;
}

}  // namespace

std::vector<std::string> contentUids() {
  std::vector<std::string> out;
  for (const Species& s : kSpecies) out.emplace_back(s.uid);
  return out;
}

JsonMap contentName(std::string_view uid) { return contentNameAt(speciesIndex(uid)); }

JsonMap contentStaticUrl(std::string_view page) { return staticUrl(page); }

HandlerTable contentHandlers() {
  // What users sent through user_feedback, kept for the life of the service.
  auto feedback = std::make_shared<std::vector<JsonMap>>();
  return {
      {cms::kArticles.path,
       [](Call&) {
         JsonList articles;
         for (const Species& s : kSpecies) articles.push_back(article(s, "care"));
         return JsonMap{{"articles", std::move(articles)}};
       }},
      {cms::kGetCmsName.path,
       [](Call& call) {
         return JsonMap{{"cms_name", contentNameAt(speciesIndex(text(call.params, "cms_name_uid")))}};
       }},
      {cms::kGetCmsNameList.path,
       [](Call& call) {
         JsonList names;
         for (const auto& uid : uids(call, "cms_name_uids")) names.push_back(contentNameAt(speciesIndex(uid)));
         return JsonMap{{"cms_name_list", std::move(names)}};
       }},
      {cms::kGetCmsNameLists.path,
       [](Call& call) {
         JsonList items;
         for (const Species& s : kSpecies) items.push_back(simpleName(s));
         return JsonMap{{"cms_name_lists", JsonList{JsonMap{{"uid", "easy-" + text(call.params, "content_type")},
                                                            {"title", "Easy houseplants"},
                                                            {"summary", "Hard to kill"},
                                                            {"image_url", std::string(kImages) + "lists/easy.jpg"},
                                                            {"items", std::move(items)},
                                                            {"fields", JsonList{"care", "light"}}}}}};
       }},
      {cms::kGetStaticContent.path,
       [](Call& call) {
         return JsonMap{{"content", "# " + text(call.params, "content_type") + "\n\nStatic text for " +
                                        text(call.params, "country_code") + "."}};
       }},
      {cms::kGetStaticUrl.path,
       [](Call& call) {
         const std::string uid = text(call.params, "uid");
         return JsonMap{
             {"cms_static_url", staticUrl(text(call.params, "content_type") + (uid.empty() ? "" : "/" + uid))}};
       }},
      {cms::kUserFeedback.path,
       [feedback](Call& call) {
         feedback->push_back(call.params);
         return JsonMap{};
       }},
      {cms::kGetSimpleCmsNameList.path,
       [](Call& call) {
         JsonList names;
         for (const auto& uid : uids(call, "cms_name_uids")) {
           JsonMap name = simpleName(kSpecies[speciesIndex(uid)]);
           name["cms_tags"] = JsonList{textTag("height", "Up to 3 m")};
           names.push_back(std::move(name));
         }
         return JsonMap{{"cms_name_list", std::move(names)}};
       }},
      {cms::kGetNameList.path,
       [](Call&) {
         return JsonMap{{"items", simpleItems()}};
       }},
      {cms::kListSimpleItems.path,
       [](Call&) {
         return JsonMap{{"items", simpleItems()}};
       }},
      {cms::kGetBookList.path,
       [](Call&) {
         JsonList books;
         for (int i = 1; i <= 2; ++i) {
           const std::string n = std::to_string(i);
           books.push_back(
               JsonMap{{"uid", "book-" + n},
                       {"title", "Houseplants, volume " + n},
                       {"sub_title", "A field guide"},
                       {"summary", "Everything about plants indoors."},
                       {"cover_image_url", std::string(kImages) + "books/" + n + ".jpg"},
                       {"edition", "2nd"},
                       {"ptbn", "PTBN-000" + n},
                       {"series_name", "Guides"},
                       {"series_description", "Field guides for every room"},
                       {"price_tiers",
                        JsonList{JsonMap{{"type", 1}, {"vip_only", 0}, {"free", 1}, {"sku", "book." + n}},
                                 JsonMap{{"type", 2}, {"vip_only", 1}, {"free", 0}, {"sku", "book." + n + ".vip"}}}},
                       {"url", "https://books.example.invalid/" + n}});
         }
         return JsonMap{{"books", std::move(books)}};
       }},
      {share::kGetCmsShareUrls.path,
       [](Call& call) {
         JsonList urls;
         const JsonValue* types = call.params.if_contains("content_types");
         const std::size_t count = types && types->is_array() ? types->get_array().size() : 1;
         for (std::size_t i = 0; i < count; ++i) {
           urls.push_back(staticUrl("share/" + text(call.params, "uid") + "/" + std::to_string(i)));
         }
         return JsonMap{{"share_urls", std::move(urls)}};
       }},
  };
}

}  // namespace qb::mock
