// The reference host against the mock service (every account endpoint, both faces) and against servers
// that fail in scripted ways. Loopback only; every wait is bounded.
#include <gtest/gtest.h>

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/host/mocks/MockTransport.hpp>
#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>
#include <QBComponentAPI/user/dict/QBAPILoginInfo.hpp>
#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserGetFaqMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserGetUserMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserInitialiseMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserLoginOrCreateMessage.hpp>
#include <QBComponentAPI/user/dict/QBUserUpdateMessage.hpp>
#include <QBComponentAPI/user/typed/UserDeleteAccountRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqRequest.hpp>
#include <QBComponentAPI/user/typed/UserGetUserRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateRequest.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserPropertiesRequest.hpp>

#include "cli/Registry.hpp"
#include "host/FaultServer.hpp"
#include "mock/Service.hpp"

namespace qb {
namespace {

using host::Client;
using host::ClientOptions;
using test::FaultServer;
using Action = FaultServer::Action;

ClientOptions loopback(std::string baseUrl) {
  return {.baseUrl = std::move(baseUrl),
          .allowInsecureLoopback = true,
          .timeout = std::chrono::milliseconds(1500),
          .maxRetries = 2,
          .backoff = std::chrono::milliseconds(5)};
}

std::string fetch(const std::string& url) {
  return host::makeCurlTransport()->send(host::HttpRequest{.method = "GET", .url = url}).body.str();
}

// A whole session through one face: every account endpoint in an order that makes sense to the service.
void session(bool dictionary) {
  mock::Service service;
  service.start();
  Client client(loopback(service.baseUrl()));
  auto call = [&](const char* name, const char* args) {
    const cli::Entry* entry = cli::findEntry(name);
    EXPECT_NE(entry, nullptr) << name;
    const auto& send = dictionary ? entry->dictionary : entry->typed;
    if (!send) return JsonValue();
    SCOPED_TRACE(name);
    return send(client, cli::Arguments{.values = parseJsonMap(args), .files = {}});
  };
  const char* login = R"("login_info": {"login_type": 3, "login_key": "fern@example.com", "login_password": "pw"},
                         "device_info": {"device_type": 1, "device_token": "t"})";

  const JsonValue init = call("user/initialise", R"({"language_code": 0, "country_code": "US"})");
  EXPECT_EQ(init.at("user").at("user_id").as_int64(), 9007199254740993);
  client.setAccessToken(std::string(init.at("access_token").as_string()));
  EXPECT_EQ(call("user/get_config", R"({"language_code": 1, "country_code": "US"})").at("config").at("timestamp"),
            JsonValue(1700000000));
  EXPECT_EQ(call("user/get_faq", R"({"language_code": 1, "device_type": 1})").at("faqs").as_array().size(), 3u);
  call("user/update", R"({"nickname": "Fern", "gender": 1})");
  const JsonValue user = call("user/get", "{}");
  EXPECT_EQ(user.at("user").at("nickname"), JsonValue("Fern"));
  EXPECT_EQ(user.at("user").at("gender"), JsonValue(1));
  call("user/update_additional_data", R"({"email_notification_enabled": false, "grows_price_label": "B"})");
  EXPECT_EQ(call("user/get", "{}").at("user_additional_data").at("grows_price_label"), JsonValue("B"));
  call("user/update_device_info", R"({"device_info": {"device_type": 2, "device_token": "t2"}})");
  call("user/update_user_conversion", R"({"is_organic": true, "cost_cents_usd": 125, "abset_id": "a"})");
  call("user/update_user_device_push_info", R"({"time_zone": "UTC", "language_code": 2})");
  call("user/update_user_properties", R"({"key": "theme", "value": "dark"})");
  EXPECT_EQ(call("user/get", "{}").at("user").at("properties").at("theme"), JsonValue("dark"));
  call("user/update_user_time_zone", R"({"time_zone": "UTC"})");
  if (!dictionary) {
    EXPECT_EQ(call("user/apple_callback", R"({"code": "c"})").at("apple_user_id"), JsonValue("apple.c"));
  }

  // The verification-code flow, with the code read where a user would read their mail.
  call("user/get_verify_code", R"({"email": "fern@example.com", "language_code": 0})");
  const JsonMap code = parseJsonMap(fetch(service.baseUrl() + "_mock/verify_codes/fern@example.com"));
  call(
      "user/check_verify_code",
      (R"({"email": "fern@example.com", "verify_code": ")" + std::string(code.at("code").as_string()) + "\"}").c_str());
  const JsonValue reset =
      call("user/reset_password_and_login",
           (R"({"email": "fern@example.com", "password": "pw", "verify_code": ")" +
            std::string(code.at("code").as_string()) + R"(", "device_info": {"device_type": 1, "device_token": "t"}})")
               .c_str());
  EXPECT_TRUE(reset.at("access_token").is_string());
  const JsonValue again = call("user/login_or_create", (std::string("{") + login + R"(, "login_action": 1})").c_str());
  EXPECT_EQ(again.at("user").at("user_id"), reset.at("user").at("user_id")) << "logs into the same account";
  if (!dictionary)
    call("user/login_or_create_for_website", (std::string("{") + login + R"(, "login_action": 0})").c_str());

  client.setAccessToken(std::string(again.at("access_token").as_string()));
  call("user/delete_account", "{}");
  EXPECT_THROW(call("user/get", "{}"), host::HttpError);
}

TEST(HostClient, EveryEndpointThroughTheDictionaryFace) { session(true); }
TEST(HostClient, EveryEndpointThroughTheTypedFace) { session(false); }

TEST(HostClient, TheAvatarTravelsAsMultipartAndIsServedBack) {
  mock::Service service;
  service.start();
  Client client(loopback(service.baseUrl()));
  auto init = QBUserInitialiseMessage::initWithData(nullptr, nullptr, 0, JsonValue("US"));
  client.send(*init);
  client.setAccessToken(std::string(init->accessToken()->as_string()));
  std::vector<std::byte> bytes;
  for (int i = 0; i < 3000; ++i) bytes.push_back(static_cast<std::byte>(i * 7));
  auto update = QBUserUpdateMessage::initWithData(std::nullopt, bytes, 0);
  client.send(*update);
  const std::string served = fetch(std::string(update->avatarUrl()->as_string()));
  EXPECT_EQ(served.size(), bytes.size());
  EXPECT_EQ(std::memcmp(served.data(), bytes.data(), bytes.size()), 0);
  // The Typed face uploads the same way.
  const auto reply = client.send(UserUpdateRequest{.avatar = APIFile{.data = {std::byte{1}, std::byte{2}}}});
  EXPECT_EQ(fetch(*reply.avatarUrl).size(), 2u);
}

TEST(HostClient, RefusesBeforeSendingWhatMustNotBeSent) {
  mock::Service service;
  service.start();
  Client client(loopback(service.baseUrl()));
  EXPECT_THROW(client.send(UserGetUserRequest{}), host::AuthRequiredError);
  auto get = QBUserGetUserMessage::initWithData();
  EXPECT_THROW(client.send(*get), host::AuthRequiredError);
  auto missing = QBUserGetConfigMessage::initWithData(0, std::nullopt);
  client.setAccessToken("t");
  EXPECT_THROW(client.send(*missing), ParameterCheckFailException);
  EXPECT_EQ(service.requestCount(), 0u) << "the service saw nothing";

  for (const char* url : {"http://example.com/", "http://10.0.0.1/"}) {
    Client insecure(loopback(url));
    EXPECT_THROW(insecure.send(UserGetConfigRequest{.languageCode = LanguageCode::en, .countryCode = "US"}),
                 host::InsecureUrlError);
  }
  Client strict({.baseUrl = service.baseUrl()});
  EXPECT_THROW(strict.send(UserGetConfigRequest{.languageCode = LanguageCode::en, .countryCode = "US"}),
               host::InsecureUrlError)
      << "loopback http only when allowed";
  EXPECT_EQ(service.requestCount(), 0u);
}

TEST(HostClient, RetriesGetButNeverPost) {
  {
    FaultServer server({Action::unavailable, Action::ok});
    Client client(loopback(server.baseUrl()));
    client.setAccessToken("t");
    EXPECT_TRUE(
        client.send(UserGetFaqRequest{.languageCode = LanguageCode::en, .deviceType = DeviceType::web}).faqs.empty())
        << "retried after 503";
    EXPECT_EQ(server.requests(), 2);
  }
  {
    FaultServer server({Action::unavailable, Action::ok});
    Client client(loopback(server.baseUrl()));
    client.setAccessToken("t");
    try {
      client.send(UserDeleteAccountRequest{});
      ADD_FAILURE();
    } catch (const host::HttpError& e) {
      EXPECT_EQ(e.status(), 503);
      EXPECT_EQ(e.body(), "busy");
    }
    EXPECT_EQ(server.requests(), 1) << "a POST is sent once";
  }
  {
    FaultServer server({Action::unavailable, Action::unavailable, Action::unavailable, Action::ok});
    Client client(loopback(server.baseUrl()));
    client.setAccessToken("t");
    EXPECT_THROW(client.send(*QBUserGetUserMessage::initWithData()), host::HttpError);
    EXPECT_EQ(server.requests(), 3) << "one try and two retries";
  }
}

TEST(HostClient, TransportFailuresAreTypedAndBounded) {
  {
    FaultServer server({Action::dropMidReply, Action::dropMidReply, Action::dropMidReply});
    Client client(loopback(server.baseUrl()));
    client.setAccessToken("secret-token-value");
    try {
      client.send(UserGetUserRequest{});
      ADD_FAILURE();
    } catch (const host::TransportError& e) {
      EXPECT_EQ(std::string(e.what()).find("secret-token-value"), std::string::npos);
    }
  }
  {
    FaultServer server({Action::silent});
    ClientOptions options = loopback(server.baseUrl());
    options.timeout = std::chrono::milliseconds(300);
    Client client(options);
    client.setAccessToken("t");
    const auto start = std::chrono::steady_clock::now();
    EXPECT_THROW(client.send(UserDeleteAccountRequest{}), host::TransportError);
    EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
  }
}

TEST(HostClient, SendsWhatTheFacesDescribe) {
  auto transport = std::make_shared<host::MockTransport>();
  std::vector<host::HttpRequest> sent;
  EXPECT_CALL(*transport, send(testing::_)).WillRepeatedly([&](const host::HttpRequest& request) {
    sent.push_back(request);
    return host::HttpResponse{200, R"({"data": {"faqs": []}})"};
  });
  Client client({.baseUrl = "https://api.example.com/base", .envelopeKey = "data"}, transport);
  client.setAccessToken("tok");
  client.send(UserGetFaqRequest{.languageCode = LanguageCode::ja, .deviceType = DeviceType::ios});
  client.send(*QBUserGetFaqMessage::initWithData(3, 1));
  auto login = QBUserLoginOrCreateMessage::initWithData(
      QBAPILoginInfo::initWithJsonObject(parseJsonMap(R"({"login_key": "a b&c"})")),
      QBAPIDeviceInfo::initWithJsonObject(parseJsonMap(R"({"device_token": "t"})")), 0);
  client.send(*login);
  client.send(UserUpdateUserPropertiesRequest{.key = "k", .value = "v"});
  ASSERT_EQ(sent.size(), 4u);
  EXPECT_EQ(sent[0].url, "https://api.example.com/base/v3/user/get_faq?language_code=3&device_type=1");
  EXPECT_EQ(sent[0].method, "GET");
  EXPECT_EQ(sent[1].url, sent[0].url);
  EXPECT_EQ(sent[2].contentType, "application/x-www-form-urlencoded");
  EXPECT_NE(sent[2].body.find("login_info=%7B%0A%20%20%22login_type%22%3A%200"), std::string::npos) << sent[2].body;
  EXPECT_EQ(sent[3].contentType, "application/json");
  EXPECT_EQ(sent[3].body, R"({"key":"k","value":"v"})");
  for (const auto& request : sent) {
    EXPECT_EQ(request.headers, (std::vector<std::pair<std::string, std::string>>{{"Authorization", "Bearer tok"}}));
  }
}

TEST(HostClient, EveryFailureOfASendIsCaughtAsQbError) {
  auto transport = std::make_shared<host::MockTransport>();
  EXPECT_CALL(*transport, send(testing::_))
      .WillOnce(testing::Return(host::HttpResponse{401, R"({"error": "invalid_token", "message": "bad token"})"}))
      .WillOnce(testing::Throw(host::TransportError("connection refused")))
      .WillOnce(testing::Return(host::HttpResponse{200, R"({"faqs": [})"}));
  Client client({.baseUrl = "https://api.example.com/", .maxRetries = 0}, transport);
  const auto faqs = UserGetFaqRequest{.languageCode = LanguageCode::en, .deviceType = DeviceType::ios};
  struct Case {
    const char* name;
    std::function<void()> send;
    std::function<void(const Error&)> check;
  } cases[] = {
      {"AuthRequiredError", [&] { client.send(UserGetUserRequest{}); },
       [](const Error& e) { EXPECT_NE(dynamic_cast<const host::AuthRequiredError*>(&e), nullptr); }},
      {"InsecureUrlError", [&] { Client({.baseUrl = "http://example.com/"}, transport).send(faqs); },
       [](const Error& e) { EXPECT_NE(dynamic_cast<const host::InsecureUrlError*>(&e), nullptr); }},
      {"HttpError",
       [&] {
         client.setAccessToken("t");
         client.send(UserGetUserRequest{});
       },
       [](const Error& e) {
         const auto* http = dynamic_cast<const host::HttpError*>(&e);
         ASSERT_NE(http, nullptr);
         EXPECT_EQ(http->status(), 401);
         EXPECT_EQ(http->error(), "invalid_token");
         EXPECT_EQ(http->message(), "bad token");
       }},
      {"ParameterCheckFailException", [&] { client.send(*QBUserGetConfigMessage::initWithData(0, std::nullopt)); },
       [](const Error& e) { EXPECT_NE(dynamic_cast<const ParameterCheckFailException*>(&e), nullptr); }},
      {"TransportError", [&] { client.send(faqs); },
       [](const Error& e) {
         EXPECT_NE(dynamic_cast<const host::TransportError*>(&e), nullptr);
         EXPECT_STREQ(e.what(), "connection refused");
       }},
      {"DecodingError", [&] { client.send(faqs); },
       [](const Error& e) {
         const auto* decoding = dynamic_cast<const DecodingError*>(&e);
         ASSERT_NE(decoding, nullptr);
         EXPECT_EQ(decoding->location(), (SourceLocation{10, 1, 11}));
       }},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.name);
    try {
      c.send();
      ADD_FAILURE() << "sent";
    } catch (const Error& e) {
      c.check(e);
    }
  }
}

TEST(HostClient, HttpErrorReadsTheServicesExplanationWhenThereIsOne) {
  struct Case {
    std::string body;
    std::optional<std::string> error, message;
  } cases[] = {
      {R"({"error": "wrong_password", "message": "the password does not match"})", "wrong_password",
       "the password does not match"},
      {R"({"status": 401, "message": "caf\u00e9", "error": "x"})", "x", "caf\xc3\xa9"},
      {R"({"error": "no_account"})", "no_account", std::nullopt},
      {R"({"error": 404, "message": null})", std::nullopt, std::nullopt},
      {R"({"error": {"code": "x"}, "message": ["m"]})", std::nullopt, std::nullopt},
      {R"([{"error": "x", "message": "m"}])", std::nullopt, std::nullopt},
      {R"({"error": "x", "message": "m"} and more)", std::nullopt, std::nullopt},
      {"<html><body>502 Bad Gateway</body></html>", std::nullopt, std::nullopt},
      {"", std::nullopt, std::nullopt},
  };
  for (const auto& c : cases) {
    SCOPED_TRACE(c.body);
    const host::HttpError e(400, c.body);
    EXPECT_EQ(e.error(), c.error);
    EXPECT_EQ(e.message(), c.message);
    EXPECT_EQ(e.body(), c.body);
  }

  // And as the mock service explains a refusal.
  mock::Service service;
  service.start();
  Client client(loopback(service.baseUrl()));
  client.setAccessToken("not-a-token");
  try {
    client.send(UserGetUserRequest{});
    ADD_FAILURE();
  } catch (const host::HttpError& e) {
    EXPECT_EQ(e.status(), 401);
    EXPECT_EQ(e.error(), "invalid_token");
    EXPECT_EQ(e.message(), "the access token is not valid");
  }
}

}  // namespace
}  // namespace qb
