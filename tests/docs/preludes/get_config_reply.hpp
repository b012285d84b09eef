// replyBytes: a get_config reply, as the mock service sends it to a guest session.
#pragma once

#include <QBComponentAPI/user/typed/UserGetConfigRequest.hpp>
#include <string>

#include "PreludeSupport.hpp"

namespace {
struct Prelude {
  std::string replyBytes = [] {
    qb::docs::RecordingClient service;
    qb::docs::signIn(service.client);
    return qb::docs::replyTo(service,
                             qb::UserGetConfigRequest{.languageCode = qb::LanguageCode::en, .countryCode = "US"});
  }();
};
}  // namespace
