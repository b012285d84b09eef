// Subscriptions end to end: the vip card follows the account's state in both faces, and a trial
// reminder is recorded by the service.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/typed/UserGetUserRequest.hpp>
#include <QBComponentAPI/user/typed/VipInfoModel.hpp>
#include <QBComponentAPI/vip/dict/VipDict.hpp>
#include <QBComponentAPI/vip/typed/VipTyped.hpp>

#include "host/MockSession.hpp"

namespace qb {
namespace {

struct Session : MockSession {
  std::int64_t userId = client.send(UserGetUserRequest{}).user.userId;
  std::shared_ptr<host::Transport> raw = host::makeCurlTransport();
  // The service's own view of the account, through its /_mock/ route.
  JsonMap mockVip(const std::string& body = {}) {
    host::HttpRequest request{.method = body.empty() ? "GET" : "POST",
                              .url = service.baseUrl() + "_mock/vip/" + std::to_string(userId),
                              .contentType = body.empty() ? "" : "application/json",
                              .body = body};
    const host::HttpResponse response = raw->send(request);
    EXPECT_EQ(response.status, 200) << response.body;
    return parseJsonMap(response.body);
  }
};

TEST(VipSession, TheVipCardFollowsTheAccountInBothFaces) {
  Session session;
  auto card = [&] {
    auto message = QBVipGetVipCardMessage::initWithData();
    session.client.send(*message);
    const VipInfoModel typed = session.client.send(VipGetVipCardRequest{}).vipInfo;
    EXPECT_EQ(message->vipInfo()->isVip(), JsonValue(typed.isVip));
    EXPECT_EQ(message->vipInfo()->vipLevel(), static_cast<std::int64_t>(typed.vipLevel));
    return typed;
  };
  const VipInfoModel free = card();
  EXPECT_FALSE(free.isVip);
  EXPECT_EQ(free.vipLevel, VipLevel::none);

  session.mockVip(R"({"is_vip": true, "is_auto_renew": true, "vip_level": 3})");
  const VipInfoModel paid = card();
  EXPECT_TRUE(paid.isVip);
  EXPECT_EQ(paid.vipLevel, VipLevel::pro);
  EXPECT_EQ(paid.userId, session.userId);
}

TEST(VipSession, ATrialReminderIsRecorded) {
  Session session;
  session.client.send(VipRemindUserToAttentionTrialRequest{.daysToRemind = 2, .email = "a@example.invalid"});
  const JsonList reminders = session.mockVip().at("trial_reminders").as_array();
  ASSERT_EQ(reminders.size(), 1u);
  EXPECT_EQ(reminders[0].at("email"), JsonValue("a@example.invalid"));
}

}  // namespace
}  // namespace qb
