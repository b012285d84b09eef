// The user domain's replies: get_faq at three sizes, get_config, initialise, and a collection of users.
#include <cstdio>

#include "Corpus.hpp"

namespace qb::bench {
namespace {

constexpr std::uint64_t kSeed = 0x5eed'0001;
// Ids from here up do not fit a double exactly.
constexpr std::int64_t kBigId = 9007199254740993;

void writeFaq(JsonText& j, Rng& rng) {
  j.beginObject()
      .key("title").string(text(rng, 4, 9))
      .key("content").string(text(rng, 10, 28))
      .key("faq_type").number(rng.between(0, 6))
      .endObject();
}

std::string uuid(Rng& rng) {
  char buffer[40];
  const std::uint64_t a = rng.next(), b = rng.next();
  std::snprintf(buffer, sizeof buffer, "%08x-%04x-%04x-%04x-%012llx", static_cast<unsigned>(a >> 32),
                static_cast<unsigned>(a >> 16) & 0xffffu, static_cast<unsigned>(a) & 0xffffu,
                static_cast<unsigned>(b >> 48), static_cast<unsigned long long>(b & 0xffffffffffffull));
  return buffer;
}

// Seconds since 1970 with milliseconds, as a JSON number.
std::string timestamp(Rng& rng) {
  char buffer[32];
  std::snprintf(buffer, sizeof buffer, "%lld.%03lld", static_cast<long long>(rng.between(1500000000, 1750000000)),
                static_cast<long long>(rng.between(0, 999)));
  return buffer;
}

// An optional text member: absent one time in five, null one time in ten.
template <class F>
void optionalMember(JsonText& j, Rng& rng, std::string_view key, F&& value) {
  if (rng.oneIn(5)) return;
  j.key(key);
  if (rng.oneIn(10)) {
    j.literal("null");
  } else {
    value();
  }
}

void writeProperties(JsonText& j, Rng& rng) {
  j.beginObject().key("theme").string(rng.oneIn(2) ? "dark" : "light");
  j.key("launches").number(rng.between(1, 5000));
  j.key("ratio").literal(rng.oneIn(2) ? "0.5" : "1.25");
  j.key("tags").beginArray().string("beta").string(text(rng, 1, 2)).endArray();
  j.key("nested").beginObject().key("onboarded").literal(rng.oneIn(2) ? "true" : "false").key("big").number(kBigId + 2);
  j.endObject().endObject();
}

void writeUser(JsonText& j, Rng& rng, std::int64_t index) {
  const std::int64_t id = rng.oneIn(3) ? rng.between(1, 1000000) : kBigId + index * 7919;
  j.beginObject().key("user_id").number(id).key("uuid").string(uuid(rng));
  optionalMember(j, rng, "nickname", [&] { j.string(text(rng, 1, 3)); });
  optionalMember(j, rng, "avatar_url", [&] {
    j.string((rng.oneIn(2) ? R"(https:\/\/cdn.example.invalid\/avatars\/)" : "https://cdn.example.invalid/avatars/") +
             std::to_string(id) + ".jpg");
  });
  // Never null: the Dictionary face reads gender as an integer and rejects a null there.
  if (!rng.oneIn(4)) j.key("gender").number(rng.between(0, 2));
  optionalMember(j, rng, "email", [&] { j.string("user" + std::to_string(id) + "@example.invalid"); });
  j.key("created_at").literal(timestamp(rng));
  j.key("guest_user").literal(rng.oneIn(4) ? "true" : "false");
  j.key("vip").literal(rng.oneIn(3) ? "true" : "false");
  if (rng.oneIn(2)) j.key("last_seen_region").string("eu-central");  // unknown to every decoder
  j.key("auto_renew_status").number(rng.between(1, 5));
  j.key("expert_consultation_count").number(rng.between(0, 20));
  optionalMember(j, rng, "app_init_version", [&] {
    j.string("3." + std::to_string(rng.between(0, 20)) + "." + std::to_string(rng.between(0, 9)));
  });
  if (rng.oneIn(3)) {
    j.key("properties");
    writeProperties(j, rng);
  }
  j.endObject();
}

void writeConfig(JsonText& j, Rng& rng) {
  j.beginObject();
  j.key("auto_update").beginObject().key("has_update").literal("true").key("force_update").literal("false").endObject();
  j.key("expert_default_count").number(3);
  j.key("share_app_url").string(R"(https:\/\/example.invalid\/app?ref=share&lang=de)");
  j.key("timestamp").number(1700000000);
  j.key("legal_config").beginObject();
  j.key("agreement_url").string("https://example.invalid/terms");
  j.key("agreement_version").number(4);
  j.key("next_agreement_url").literal("null");
  j.key("next_agreement_version").number(5);
  j.key("next_agreement_available_at").literal(timestamp(rng));
  j.key("third_party_notices_url").string("https://example.invalid/notices");
  j.key("privacy_policy_url").string("https://example.invalid/privacy");
  j.key("data_management_url").string("https://example.invalid/data");
  j.key("privacy_policy_version").number(7);
  j.endObject().endObject();
}

void writeOtherConfigs(JsonText& j, Rng& rng) {
  j.beginObject();
  j.key("feature_x").literal("true");
  j.key("rollout").literal("0.25");
  j.key("big_id").number(kBigId);
  j.key("max_uint").literal("18446744073709551615");
  j.key("limits").beginObject().key("scans_per_day").number(10).key("max_photo_kb").number(4096).endObject();
  j.key("banner_text").string(text(rng, 8, 16));
  j.key("regions").beginArray().string("eu").string("us").string("apac").endArray();
  j.key("ab_bucket").literal("null");
  j.endObject();
}

Reply getFaq(int count) {
  Rng rng(kSeed + static_cast<std::uint64_t>(count));
  JsonText j;
  j.beginObject().key("faqs").beginArray();
  for (int i = 0; i < count; ++i) writeFaq(j, rng);
  j.endArray().endObject();
  return {"get_faq", "get_faq/" + std::to_string(count), count >= 100000, j.take()};
}

Reply getConfig() {
  Rng rng(kSeed + 1);
  JsonText j;
  j.beginObject().key("config");
  writeConfig(j, rng);
  j.key("other_configs");
  writeOtherConfigs(j, rng);
  j.endObject();
  return {"get_config", "get_config", false, j.take()};
}

Reply initialise() {
  Rng rng(kSeed + 2);
  JsonText j;
  j.beginObject().key("user");
  writeUser(j, rng, 1);
  j.key("user_additional_data").beginObject();
  j.key("exist_user").literal("true").key("today_user").literal("false").key("is_vip_in_history").literal("true");
  j.key("email_notification_enabled").literal("true").key("grows_price_label").string(text(rng, 2, 4));
  j.endObject();
  j.key("access_token").string("eyJhbGciOiJIUzI1NiJ9." + uuid(rng) + uuid(rng) + uuid(rng) + "." + uuid(rng));
  j.key("config");
  writeConfig(j, rng);
  j.key("other_configs");
  writeOtherConfigs(j, rng);
  j.key("app_server_time").literal(timestamp(rng));
  j.key("country").string("DE");
  j.endObject();
  return {"initialise", "initialise", false, j.take()};
}

Reply userList(int count) {
  Rng rng(kSeed + 3);
  JsonText j;
  j.beginObject().key("users").beginArray();
  for (int i = 0; i < count; ++i) writeUser(j, rng, i);
  j.endArray().endObject();
  return {"user_list", "user_list/" + std::to_string(count), count >= 10000, j.take()};
}

}  // namespace

std::vector<Reply> userReplies() {
  std::vector<Reply> replies;
  replies.push_back(getConfig());
  replies.push_back(initialise());
  for (int count : {10, 1000, 100000}) replies.push_back(getFaq(count));
  replies.push_back(userList(20000));
  return replies;
}

}  // namespace qb::bench
