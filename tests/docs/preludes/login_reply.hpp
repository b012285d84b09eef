// replyBytes: the mock service's reply to a login_or_create that logs fern@example.com in (the account is
// created first, so that onlyLogin finds it). The Dictionary-face classes the fragment builds are included.
#pragma once

#include <QBComponentAPI/user/dict/QBAPIDeviceInfo.hpp>
#include <QBComponentAPI/user/dict/QBAPILoginInfo.hpp>
#include <QBComponentAPI/user/dict/QBUserLoginOrCreateMessage.hpp>
#include <QBComponentAPI/user/typed/UserLoginOrCreateRequest.hpp>
#include <string>

#include "PreludeSupport.hpp"

namespace {
struct Prelude {
  std::string replyBytes = [] {
    qb::docs::RecordingClient service;
    qb::UserLoginOrCreateRequest login{
        .loginInfo = {.loginType = qb::LoginType::email, .loginKey = "fern@example.com", .loginPassword = "secret"},
        .deviceInfo = {.deviceType = qb::DeviceType::ios, .deviceToken = "apns-token"},
        .loginAction = qb::LoginAction::createThenLogin};
    service.client.send(login);
    login.loginAction = qb::LoginAction::onlyLogin;
    return qb::docs::replyTo(service, login);
  }();
};
}  // namespace
