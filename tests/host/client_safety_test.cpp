// What the host refuses to send, and what it leaves out of its messages: base URLs, header values, query
// and form escaping, and the text of its errors. No network but loopback.
#include <QBComponentAPI/host/Client.hpp>

#include <gtest/gtest.h>

#include <QBComponentAPI/host/mocks/MockTransport.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

namespace qb {
namespace {

using host::Client;

const UserGetConfigRequest kConfig{.languageCode = LanguageCode::en, .countryCode = "US"};

enum class Outcome { sent, insecure, invalid };

// Sends one https-only request over the base URL (insecure loopback allowed) and says how far it got.
Outcome attempt(const std::string& baseUrl) {
  auto transport = std::make_shared<host::MockTransport>();
  EXPECT_CALL(*transport, send(testing::_)).WillRepeatedly(testing::Throw(host::TransportError("reached")));
  Client client({.baseUrl = baseUrl, .allowInsecureLoopback = true, .maxRetries = 0}, transport);
  client.setAccessToken("t");
  try {
    client.send(kConfig);
  } catch (const host::TransportError&) {
    return Outcome::sent;
  } catch (const host::InsecureUrlError&) {
    return Outcome::insecure;
  } catch (const host::InvalidUrlError&) {
    return Outcome::invalid;
  }
  ADD_FAILURE() << "no error at all";
  return Outcome::sent;
}

TEST(HostSafety, PlainHttpGoesOnlyToAParsedLoopbackHost) {
  struct Case {
    const char* baseUrl;
    Outcome outcome;
  } cases[] = {
      {"http://127.0.0.1:8080/", Outcome::sent},
      {"http://127.255.255.254/v", Outcome::sent},
      {"http://localhost/", Outcome::sent},
      {"HTTP://LocalHost:1/api", Outcome::sent},
      {"http://[::1]:9/", Outcome::sent},
      {"http://user:pw@127.0.0.1/", Outcome::sent},
      {"https://example.com/", Outcome::sent},
      {"https://127.0.0.1.attacker.example/", Outcome::sent},
      {"http://127.0.0.1.attacker.example/", Outcome::insecure},
      {"http://127.attacker.example/", Outcome::insecure},
      {"http://127.0.0.1@attacker.example/", Outcome::insecure},
      {"http://localhost.attacker.example/", Outcome::insecure},
      {"http://127.0.0.1./", Outcome::insecure},
      {"http://127.0.0.256/", Outcome::insecure},
      {"http://127.0.0/", Outcome::insecure},
      {"http://127.1/", Outcome::insecure},
      {"http://0127.0.0.1/", Outcome::insecure},
      {"http://127.0.0.01/", Outcome::insecure},
      {"http://0x7f.0.0.1/", Outcome::insecure},
      {"http://2130706433/", Outcome::insecure},
      {"http://[::2]/", Outcome::insecure},
      {"http://[::ffff:127.0.0.1]/", Outcome::insecure},
      {"http://10.0.0.1/", Outcome::insecure},
      {"http://example.com/", Outcome::insecure},
      {"ftp://127.0.0.1/", Outcome::invalid},
      {"file:///etc/passwd", Outcome::invalid},
      {"127.0.0.1/", Outcome::invalid},
      {"http://", Outcome::invalid},
      {"http://:80/", Outcome::invalid},
      {"http://127.0.0.1:/", Outcome::invalid},
      {"http://127.0.0.1:99999/", Outcome::invalid},
      {"http://127.0.0.1:8x/", Outcome::invalid},
      {"http://127.0.0.1:1:2/", Outcome::invalid},
      {"http://[::1/", Outcome::invalid},
      {"http://[::1]x/", Outcome::invalid},
      {"http://[::1%25lo]/", Outcome::invalid},
      {"http://127.0.0.1 .attacker.example/", Outcome::invalid},
      {"http://127.0.0.1\\@attacker.example/", Outcome::invalid},
      {"http://ex%61mple.com/", Outcome::invalid},
  };
  for (const auto& c : cases) {
    EXPECT_EQ(attempt(c.baseUrl), c.outcome) << c.baseUrl;
  }
}

TEST(HostSafety, TheCurlTransportSpeaksOnlyHttpAndHttps) {
  for (const char* url : {"file:///etc/hostname", "ftp://127.0.0.1:1/", "dict://127.0.0.1:1/", "gopher://127.0.0.1:1/"}) {
    EXPECT_THROW(host::makeCurlTransport()->send(host::HttpRequest{.method = "GET", .url = url}), host::TransportError)
        << url;
  }
}

}  // namespace
}  // namespace qb
