// For a fragment that makes its own client: baseUrl (the mock service's), token (of a guest session opened
// there) and message, a get_config message to send. The fragment must fill the message.
#pragma once

#include <QBComponentAPI/host/Client.hpp>
#include <QBComponentAPI/user/dict/QBUserGetConfigMessage.hpp>
#include <QBComponentAPI/user/typed/UserGetFaqRequest.hpp>
#include <memory>
#include <string>

#include "PreludeSupport.hpp"

namespace {
struct Prelude {
  std::string baseUrl = qb::docs::serviceUrl();
  std::string token;
  std::shared_ptr<qb::QBUserGetConfigMessage> message =
      qb::QBUserGetConfigMessage::initWithData(qb::rawValue(qb::LanguageCode::en), qb::JsonValue("US"));

  Prelude() {
    qb::host::Client guest(qb::docs::serviceOptions());
    token = qb::docs::signIn(guest);
  }

  void finish() const { qb::docs::expect(message->config() != nullptr, "the message holds no config"); }
};
}  // namespace
