// A small app built the way a consumer builds against QBComponentAPI: as a subdirectory, through
// FetchContent, from the installed package, or with nothing but pkg-config's flags. It reads one reply
// through both faces and, when built with QB_CONSUMER_HOST, sends a message through the host.
#include <QBComponentAPI/QBComponentAPI.hpp>
#include <QBComponentAPI/user/dict/QBAPIUser.hpp>
#if QB_CONSUMER_HOST
#include <QBComponentAPI/host/Client.hpp>
#endif

#include <iostream>
#include <string>

namespace {

const std::string kReply = R"({"user": {"user_id": 7, "uuid": "u-7", "nickname": "Fern", "created_at": 1700000000,
  "guest_user": false, "vip": true, "auto_renew_status": 3, "expert_consultation_count": 2},
  "user_additional_data": {"exist_user": true, "today_user": false, "is_vip_in_history": false,
  "email_notification_enabled": true, "grows_price_label": "A"}})";

bool expect(bool ok, const char* what) {
  if (!ok) std::cerr << "consumer: " << what << " is wrong\n";
  return ok;
}

#if QB_CONSUMER_HOST
// Answers every exchange with kReply, so that the client runs without a network.
class CannedTransport : public qb::host::Transport {
 public:
  qb::host::HttpResponse send(const qb::host::HttpRequest&) override { return {.status = 200, .body = kReply}; }
};
#endif

}  // namespace

int main() {
  bool ok = true;
  const auto user = qb::QBAPIUser::initWithJsonObject(qb::parseJson(kReply).at("user"));
  ok &= expect(qb::toJson(*user->nickname()) == "\"Fern\"", "the Dictionary-face record");
  const auto typed = qb::UserGetUserResponse::init(std::string_view(kReply), qb::JSONDecoder{});
  ok &= expect(typed.user.userId == 7 && typed.user.nickname == "Fern", "the Typed-face record");
#if QB_CONSUMER_HOST
  qb::host::Client client({.baseUrl = "https://api.example.com/"}, std::make_shared<CannedTransport>());
  client.setAccessToken("token");
  auto message = qb::QBUserGetUserMessage::initWithData();
  client.send(*message);
  ok &= expect(qb::toJson(*message->user()->nickname()) == "\"Fern\"", "the message sent through the host");
#endif
  if (!ok) return 1;
  std::cout << "consumer ok\n";
  return 0;
}
