// An app's test of its own code with the installed GoogleMock transport.
#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/host/mocks/MockTransport.hpp>
#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

TEST(Consumer, TheMockTransportStandsInForTheNetwork) {
  auto transport = std::make_shared<testing::StrictMock<qb::host::MockTransport>>();
  EXPECT_CALL(*transport, send(testing::Field(&qb::host::HttpRequest::url, testing::HasSubstr("v3/user/get_config"))))
      .WillOnce(testing::Return(qb::host::HttpResponse{.status = 500, .body = "{}"}));
  qb::host::Client client({.baseUrl = "https://api.example.com/", .maxRetries = 0}, transport);
  client.setAccessToken("token");
  EXPECT_THROW(client.send(qb::UserGetConfigRequest{.languageCode = qb::LanguageCode::en, .countryCode = "US"}),
               qb::host::HttpError);
}
