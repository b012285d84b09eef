// The subscription domain in both faces: the verify and restore results, the vip card and the trial
// reminder.
#include <gtest/gtest.h>

#include <QBComponentAPI/frame/JsonValueCodec.hpp>
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>
#include <functional>

#include "dict_helpers.hpp"
#include "typed_helpers.hpp"
#include "vip/Fixtures.hpp"

namespace qb {
namespace {

using namespace fixtures::vip;

// --- Dictionary face ------------------------------------------------------------------------------------

struct ResultRow {
  const char* name;
  std::function<std::shared_ptr<QBAPIModel>(const JsonMap&)> read;
  std::string full;
};

template <class M>
ResultRow result(const char* name, std::string full) {
  return {name, [](const JsonMap& map) { return M::initWithJsonObject(map); }, std::move(full)};
}

const std::vector<ResultRow>& resultRows() {
  static const std::vector<ResultRow> table{result<QBAPIVerifyResult>("VerifyResult", kVerifyResult),
                                            result<QBAPIRestoreResult>("RestoreResult", kRestoreResult)};
  return table;
}

TEST(VipDictResults, RoundTripAndRequireTheSummary) {
  for (const auto& row : resultRows()) {
    SCOPED_TRACE(row.name);
    const JsonMap full = parseJsonMap(row.full);
    const auto model = row.read(full);
    EXPECT_EQ(model->modelName(), row.name);
    EXPECT_EQ(toJson(model->toDictionary()), toJson(full));
    EXPECT_EQ(parseJsonMap(model->toJsonString().value_or("{}")), full);

    const std::string reason = "vipInfo is missing in model " + std::string(row.name);
    JsonMap map = full;
    map.erase("vip_info");
    EXPECT_EQ(reasonOf([&] { row.read(map); }), reason);
    map["vip_info"] = nullptr;
    EXPECT_EQ(reasonOf([&] { row.read(map); }), reason);
    map["vip_info"] = "not a map";
    EXPECT_THROW(row.read(map), JsonTypeError);
    // The summary checks nothing of its own: an empty one is a summary.
    map["vip_info"] = JsonMap{};
    EXPECT_EQ(reasonOf([&] { row.read(map); }), "<none>");
  }
}

TEST(VipDictResults, TheLoginSecretIsTheRestoreResultsAloneAndOptional) {
  const auto restored = QBAPIRestoreResult::initWithJsonObject(parseJsonMap(kVerifyResult));
  EXPECT_FALSE(restored->loginSecret());
  EXPECT_EQ(JsonValue(restored->toDictionary()), parseJson(kVerifyResult)) << "no login_secret written";
  EXPECT_EQ(QBAPIRestoreResult::initWithJsonObject(parseJsonMap(kRestoreResult))->loginSecret(), JsonValue("ls-7f3a"));

  const auto verified = QBAPIVerifyResult::initWithJsonObject(parseJsonMap(kRestoreResult));
  EXPECT_EQ(verified->vipInfo()->sku(), JsonValue("pro.year"));
  EXPECT_EQ(JsonValue(verified->toDictionary()), parseJson(kVerifyResult)) << "login_secret ignored";
}

TEST(VipDictMessages, VipCardSendsNothingAndKeepsItsSummaryWhenTheReplyHasNone) {
  const auto card = QBVipGetVipCardMessage::initWithData();
  EXPECT_EQ(toJson(card->getParams()), "{}");
  card->parseResponse(JsonMap{});
  EXPECT_FALSE(card->vipInfo());
  EXPECT_EQ(&card->parseResponse(parseJsonMap(kVerifyResult)), card.get());
  ASSERT_TRUE(card->vipInfo());
  EXPECT_EQ(card->vipInfo()->vipLevel(), 2);
  for (const char* reply : {"{}", R"({"vip_info": null})"}) {
    card->parseResponse(parseJsonMap(reply));
    ASSERT_TRUE(card->vipInfo()) << reply;
    EXPECT_EQ(card->vipInfo()->sku(), JsonValue("pro.year")) << reply;
  }
  EXPECT_THROW(card->parseResponse(parseJsonMap(R"({"vip_info": {"vip_level": null}})")), JsonTypeError);
  EXPECT_EQ(card->vipInfo()->vipLevel(), 2) << "a failed reply leaves the summary it had";
}

// --- Typed face -----------------------------------------------------------------------------------------

template <class T>
T decoded(std::string_view json) {
  const T fast = JSONDecoder().decode<T>(json);
  EXPECT_EQ(JsonValueDecoder().decode<T>(parseJson(json)), fast) << json;
  EXPECT_EQ(JSONDecoder().decode<T>(JSONEncoder().encode(fast)), fast) << json;
  return fast;
}

TEST(VipTypedRecords, RoundTripAndRequireTheSummary) {
  const std::vector<std::pair<const char*, std::function<void(std::string_view)>>> records{
      {"VerifyResult", [](std::string_view json) { decoded<VerifyResultModel>(json); }},
      {"RestoreResult", [](std::string_view json) { decoded<RestoreResultModel>(json); }},
      {"GetVipCardResponse", [](std::string_view json) { decoded<VipGetVipCardResponse>(json); }},
  };
  for (const auto& [name, decode] : records) {
    SCOPED_TRACE(name);
    decode(kRestoreResult);
    expectRequiredKeysFail(name, parseJsonMap(kRestoreResult), {"vip_info"}, decode);
  }
  EXPECT_EQ(decoded<VipGetVipCardResponse>(kVerifyResult).vipInfo.vipLevel, VipLevel::platinum);
}

TEST(VipTypedRecords, TheLoginSecretIsTheRestoreResultsAloneAndOptional) {
  const auto restored = decoded<RestoreResultModel>(kVerifyResult);
  EXPECT_FALSE(restored.loginSecret);
  EXPECT_EQ(JSONEncoder().encode(restored).find("login_secret"), std::string::npos);
  EXPECT_EQ(decoded<RestoreResultModel>(kRestoreResult).loginSecret, "ls-7f3a");

  const auto verified = decoded<VerifyResultModel>(kRestoreResult);
  EXPECT_EQ(verified, decoded<VerifyResultModel>(kVerifyResult));
  EXPECT_EQ(JSONEncoder().encode(verified).find("login_secret"), std::string::npos);
}

TEST(VipTypedRequests, EncodeExactly) {
  const struct {
    Described described;
    const char* path;
    const char* body;
  } rows[] = {
      {describe(VipGetVipCardRequest{}), "v3/vip/vip_card", "{}"},
      {describe(VipRemindUserToAttentionTrialRequest{.daysToRemind = 2, .email = "fern@example.com"}),
       "v3/vip/remind_user_to_attention_trial", R"({"days_to_remind":2,"email":"fern@example.com"})"},
      {describe(VipRemindUserToAttentionTrialRequest{
           .languageCode = LanguageCode::ko, .daysToRemind = 0, .email = "fern@example.com"}),
       "v3/vip/remind_user_to_attention_trial", R"({"language_code":4,"days_to_remind":0,"email":"fern@example.com"})"},
  };
  for (const auto& row : rows) {
    SCOPED_TRACE(row.body);
    EXPECT_EQ(row.described.api, row.path);
    EXPECT_EQ(row.described.body, row.body);
    EXPECT_EQ(row.described.mimeBodies, 0u);
  }
  // The reminder's reply carries nothing and any object is accepted.
  EXPECT_NO_THROW(
      VipRemindUserToAttentionTrialResponse::init(std::string_view(R"({"sent": true, "x": [1]})"), JSONDecoder()));
  EXPECT_THROW(VipRemindUserToAttentionTrialResponse::init(std::string_view("[]"), JSONDecoder()), DecodingError);
}

}  // namespace
}  // namespace qb
