// Shared Dictionary-face models and messages read, written and serialised from several threads at once.
// Run under the tsan preset, where any unsynchronised access fails the test.
#include <gtest/gtest.h>

#include <atomic>
#include <thread>

#include <QBComponentAPI/user/dict/UserDict.hpp>

namespace qb {
namespace {

TEST(Concurrency, PropertiesOfSharedModelsAndMessagesStayWhole) {
  // The key starts in the shape the writers give it, so the reader may see it before their first write.
  auto info = QBAPILoginInfo::initWithJsonObject(
      parseJsonMap(R"({"login_type": 3, "login_key": ")" + std::string(40, 'z') + R"("})"));
  auto device = QBAPIDeviceInfo::initWithJsonObject(parseJsonMap(R"({"device_type": 1, "device_token": "t"})"));
  auto message = QBUserLoginOrCreateMessage::initWithData(info, device, 0);
  const std::string reply = R"({"user": {"user_id": 1, "uuid": "u", "created_at": 1, "guest_user": true, "vip": false,
    "expert_consultation_count": 0}, "access_token": "token"})";

  std::atomic<int> running{3};
  std::atomic<int> broken{0};
  auto writer = [&](int seed) {
    for (int i = 0; i < 2000; ++i) {
      info->setLoginKey(JsonValue(std::string(40, static_cast<char>('a' + (i + seed) % 26))));
      info->setLoginType((i % 2) ? 3 : 6);
      message->setLoginAction(i % 3);
      message->setDeviceInfo(i % 2 ? device : QBAPIDeviceInfo::initWithJsonObject(device->toDictionary()));
      message->parseResponse(parseJsonMap(reply));
    }
    --running;
  };
  std::thread a(writer, 0), b(writer, 7);
  std::thread serialiser([&] {
    while (running.load() > 1) {
      const auto key = info->loginKey();
      const auto& text = key->as_string();
      if (text.size() != 40 || text.find_first_not_of(text[0]) != std::string::npos) ++broken;
      const JsonMap params = message->getParams();
      if (!params.at("login_info").is_string() || params.at("login_action").as_int64() > 2) ++broken;
      if (message->user() && !message->user()->toJsonString()) ++broken;
    }
    --running;
  });
  a.join();
  b.join();
  serialiser.join();
  EXPECT_EQ(broken, 0);
}

}  // namespace
}  // namespace qb
