// The mock service's item collection: every account gets a seeded collection on its first item call, the
// same for every account apart from the ids, and the item endpoints read and edit it. Items are kept
// newest first (by id, which grows with every item), which is also the order pages are cut in: a page
// after item X starts with the first item whose id is below X, so a deleted X still resumes correctly.
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <algorithm>
#include <charconv>
#include <map>
#include <memory>

#include "mock/Handlers.hpp"

namespace qb::mock {
namespace {

constexpr const char* kPhotos = "https://photos.example.invalid/";
constexpr std::size_t kSeededItems = 12;
constexpr std::int64_t kDefaultPageSize = 20;
constexpr std::int64_t kMaxPageSize = 1000;

// A whole number parameter, whether it came as JSON or as query text; Failure 400 otherwise.
std::int64_t integer(const JsonMap& params, std::string_view key) {
  const JsonValue* v = params.if_contains(key);
  if (v && v->is_int64()) return v->get_int64();
  if (v && v->is_uint64() && v->get_uint64() <= static_cast<std::uint64_t>(INT64_MAX))
    return static_cast<std::int64_t>(v->get_uint64());
  if (v && v->is_string()) {
    const std::string_view s = v->get_string();
    std::int64_t n = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), n);
    if (ec == std::errc() && end == s.data() + s.size()) return n;
  }
  throw Failure{400, "invalid_parameter", std::string(key) + " must be a whole number"};
}

double number(const JsonMap& params, std::string_view key) {
  const JsonValue* v = params.if_contains(key);
  if (v && v->is_number()) return v->to_number<double>();
  if (v && v->is_string()) {
    const std::string_view s = v->get_string();
    double d = 0;
    const auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), d);
    if (ec == std::errc() && end == s.data() + s.size()) return d;
  }
  throw Failure{400, "invalid_parameter", std::string(key) + " must be a number"};
}

// A flag parameter: true, 1 or "true"/"1" set it.
bool flag(const JsonMap& params, std::string_view key) {
  const JsonValue* v = params.if_contains(key);
  if (!v) return false;
  if (v->is_bool()) return v->get_bool();
  if (v->is_int64()) return v->get_int64() != 0;
  const std::string t = text(params, key);
  return t == "true" || t == "1";
}

struct Item {
  JsonMap record;                       // the simple item as the service answers it
  JsonList probabilities;               // scores of the candidate names, best first
  std::vector<std::string> candidates;  // content name uids, index for index with the scores
  JsonMap originalImage;                // the facts recorded with the last original image address
  std::string originalDetImageUrl;
};

struct Collection {
  std::vector<Item> items;  // newest first
  bool deleteCandidate = false;
  bool deleteNotified = false;
};

struct State {
  std::map<std::int64_t, Collection> accounts;  // user id -> collection
  std::int64_t nextItemId = 9007199254800001;   // above 2^53, as real ids may be

  Collection& of(const Call& call) {
    auto [found, fresh] = accounts.try_emplace(*call.userId);
    if (fresh) seed(found->second);
    return found->second;
  }

  Item& find(const Call& call, std::int64_t id) {
    for (Item& item : of(call).items) {
      if (item.record.at("item_id").as_int64() == id) return item;
    }
    throw Failure{404, "no_item", "no item " + std::to_string(id) + " in this collection"};
  }

  // Every seeded item names a seeded content name; the odd ones carry a note, the first a location of
  // 0, 0 (a real place in the sea), every third one a custom name and a disease.
  void seed(Collection& collection) {
    const std::vector<std::string> uids = contentUids();
    for (std::size_t i = 0; i < kSeededItems; ++i) {
      const std::string& uid = uids[i % uids.size()];
      const JsonMap name = contentName(uid).at("name").as_object();
      const std::int64_t id = nextItemId++;
      const std::string base = std::string(kPhotos) + std::to_string(id);
      JsonMap record{{"item_id", id},
                     {"item_image", JsonMap{{"icon_url", base + "/icon.jpg"},
                                            {"thumbnail_url", base + "/thumb.jpg"},
                                            {"image_url", base + ".jpg"},
                                            {"original_url", base + "/original.heic"}}},
                     {"shoot_at", 1700000000 + static_cast<std::int64_t>(i) * 86400},
                     {"name", name.at("preferred_name")},
                     {"cms_name_uid", uid},
                     {"latin_name", name.at("latin_name")},
                     {"properties", R"({"pot":"clay"})"},
                     {"lng", i == 0 ? 0.0 : 139.6917 + static_cast<double>(i) / 100},
                     {"lat", i == 0 ? 0.0 : 35.6895 - static_cast<double>(i) / 100}};
      if (i % 2 == 1) record["custom_note"] = "Watered on day " + std::to_string(i);
      if (i % 3 == 0) {
        record["custom_name"] = "Plant #" + std::to_string(i + 1);
        record["disease_uid"] = "disease-leaf-spot";
      }
      Item item{std::move(record), JsonList{0.91, 0.06}, {uid, uids[(i + 1) % uids.size()]}, {}, {}};
      collection.items.insert(collection.items.begin(), std::move(item));
    }
  }
};

// The image addresses as a signed request gets them: each with a signature the service would check.
JsonMap signedImage(const JsonValue& image) {
  JsonMap out = image.as_object();
  const std::string url = text(out, "image_url");
  if (!url.empty()) out["signature_image_url"] = url + "?sig=mock&exp=1700003600";
  return out;
}

JsonMap simple(const Item& item, bool sign) {
  JsonMap record = item.record;
  if (sign) record["item_image"] = signedImage(record["item_image"]);
  return record;
}

JsonMap detail(const Item& item, bool sign) {
  JsonMap record = simple(item, sign);
  JsonList names;
  for (const std::string& uid : item.candidates) names.emplace_back(contentName(uid));
  record["cms_names"] = std::move(names);
  record["probabilities"] = item.probabilities;
  return record;
}

JsonList idList(const JsonMap& params, std::string_view key) {
  const JsonValue* v = params.if_contains(key);
  if (!v || !v->is_array()) throw Failure{400, "invalid_parameter", std::string(key) + " must be a list of ids"};
  JsonList out;
  for (const JsonValue& id : v->get_array()) {
    if (!id.is_int64()) throw Failure{400, "invalid_parameter", std::string(key) + " must be a list of ids"};
    out.push_back(id);
  }
  return out;
}

}  // namespace

HandlerTable itemHandlers(Extras& extras) {
  auto state = std::make_shared<State>();
  // An account's collection as stored, with what the list endpoints do not show.
  extras.routes[R"(items/(\d+))"] = [state](const std::vector<std::string>& captures) {
    std::int64_t user = 0;
    std::from_chars(captures[0].data(), captures[0].data() + captures[0].size(), user);
    const auto found = state->accounts.find(user);
    if (found == state->accounts.end()) throw Failure{404, "no_collection", "this account has no collection yet"};
    JsonList items;
    for (const Item& item : found->second.items) {
      JsonMap stored = detail(item, false);
      stored["original_image"] = item.originalImage;
      if (!item.originalDetImageUrl.empty()) stored["original_det_image_url"] = item.originalDetImageUrl;
      items.emplace_back(std::move(stored));
    }
    return JsonMap{{"items", std::move(items)},
                   {"delete_candidate", found->second.deleteCandidate},
                   {"delete_notified", found->second.deleteNotified}};
  };
  extras.onAccountDeleted.emplace_back([state](std::int64_t user) { state->accounts.erase(user); });

  auto edit = [state](auto change) {
    return [state, change](Call& call) {
      change(call, state->find(call, integer(call.params, "item_id")));
      return JsonMap{};
    };
  };
  return {
      {item::kGetItemDetail.path,
       [state](Call& call) {
         const Item& item = state->find(call, integer(call.params, "item_id"));
         return JsonMap{{"item", detail(item, flag(call.params, "sign_image_url"))}};
       }},
      {item::kListMyCollections.path,
       [state](Call& call) {
         const bool sign = flag(call.params, "sign_image_url");
         JsonList items;
         for (const Item& item : state->of(call).items) items.emplace_back(simple(item, sign));
         return JsonMap{{"items", std::move(items)}};
       }},
      {item::kListMyCollectionsPage.path,
       [state](Call& call) {
         const std::int64_t size =
             call.params.contains("page_size") ? integer(call.params, "page_size") : kDefaultPageSize;
         if (size < 1 || size > kMaxPageSize)
           throw Failure{400, "invalid_parameter", "page_size must lie in 1.." + std::to_string(kMaxPageSize)};
         std::optional<std::int64_t> after;
         if (call.params.contains("last_item_id")) after = integer(call.params, "last_item_id");
         std::optional<JsonList> only;
         if (call.params.contains("specify_item_ids")) only = idList(call.params, "specify_item_ids");
         JsonList items;
         for (const Item& item : state->of(call).items) {
           if (items.size() == static_cast<std::size_t>(size)) break;
           const JsonValue& id = item.record.at("item_id");
           if (after && id.as_int64() >= *after) continue;
           if (only && std::find(only->begin(), only->end(), id) == only->end()) continue;
           items.emplace_back(simple(item, false));
         }
         return JsonMap{{"items", std::move(items)}};
       }},
      {item::kDeleteItem.path,
       [state](Call& call) {
         const std::int64_t id = integer(call.params, "item_id");
         state->find(call, id);
         std::erase_if(state->of(call).items, [id](const Item& i) { return i.record.at("item_id").as_int64() == id; });
         return JsonMap{};
       }},
      {item::kBatchDeleteItems.path,
       [state](Call& call) {
         const JsonList ids = idList(call.params, "item_ids");
         // Ids that are not (or no longer) in the collection are ignored, so a repeated batch is harmless.
         std::erase_if(state->of(call).items, [&ids](const Item& i) {
           return std::find(ids.begin(), ids.end(), i.record.at("item_id")) != ids.end();
         });
         return JsonMap{};
       }},
      {item::kChangeItemCmsName.path, edit([](Call& call, Item& item) {
         const std::string uid = text(call.params, "cms_name_uid");
         // Failure 404 for a name the catalogue does not hold.
         const JsonMap name = contentName(uid).at("name").as_object();
         item.record["cms_name_uid"] = uid;
         item.record["name"] = text(call.params, "cms_name_name");
         item.record["latin_name"] = name.at("latin_name");
         item.record.erase("disease_uid");
         // The user's choice becomes the first candidate, as certain as can be.
         std::erase(item.candidates, uid);
         item.candidates.insert(item.candidates.begin(), uid);
         item.probabilities = JsonList{1.0};
         for (std::size_t i = 1; i < item.candidates.size(); ++i) item.probabilities.emplace_back(0.0);
       })},
      {item::kUpdateItemCustomName.path,
       edit([](Call& call, Item& item) { item.record["custom_name"] = text(call.params, "name"); })},
      {item::kUpdateItemCustomNote.path,
       [state](Call& call) {
         Item& item = state->find(call, integer(call.params, "item_id"));
         item.record["custom_note"] = text(call.params, "note");
         return JsonMap{{"notes_with_signed_url", item.record["custom_note"]}};
       }},
      {item::kUpdateItemLocation.path, edit([](Call& call, Item& item) {
         item.record["lng"] = number(call.params, "lng");
         item.record["lat"] = number(call.params, "lat");
       })},
      {item::kUpdateItemOriginalImageUrl.path, edit([](Call& call, Item& item) {
         item.record["item_image"].as_object()["original_url"] = text(call.params, "original_image_url");
         item.originalImage = call.params;
       })},
      {item::kUpdateItemOriginalDetImageUrl.path,
       edit([](Call& call, Item& item) { item.originalDetImageUrl = text(call.params, "original_det_image_url"); })},
      {item::kItemDeleteCandidateUser.path,
       [state](Call& call) {
         state->of(call).deleteCandidate = true;
         return JsonMap{};
       }},
      {item::kItemDeleteNotified.path,
       [state](Call& call) {
         state->of(call).deleteNotified = true;
         return JsonMap{};
       }},
      {item::kCheckUserBuyCloudStorage.path,
       [](Call&) {
         return JsonMap{{"has_buy_cloud_storage", false}};
       }},
  };
}

}  // namespace qb::mock
