#include "cli/Registry.hpp"

#include <QBComponentAPI/frame/detail/DictEngine.hpp>
#include <QBComponentAPI/user/dict/UserDict.hpp>
#include <QBComponentAPI/user/typed/UserTyped.hpp>

namespace qb::cli {
namespace {

// Builds the message from the arguments exactly as a model reads a map, sends it, and returns its results.
template <class Message>
JsonValue sendDictionary(host::Client& client, const Arguments& args) {
  auto message = std::make_shared<Message>();
  detail::readFields<&Message::qbParams>(*message, args.values);
  if constexpr (requires { message->setAvatar(std::vector<std::byte>{}); }) {
    if (const auto file = args.files.find("avatar"); file != args.files.end()) message->setAvatar(file->second);
  }
  client.send(*message);
  return detail::tableToDictionary(Message::qbResults(), *message);
}

// Decodes the request record from the arguments, sends it, and returns the response encoded again.
template <class Request>
JsonValue sendTyped(host::Client& client, const Arguments& args) {
  Request request = JsonValueDecoder().decode<Request>(JsonValue(args.values));
  if constexpr (requires { request.avatar; }) {
    if (const auto file = args.files.find("avatar"); file != args.files.end()) request.avatar = APIFile{file->second};
  }
  return JsonValueEncoder().encode(client.send(request));
}

template <class Message, class Request>
Entry entry(const Endpoint& endpoint) {
  Entry e{&endpoint, std::string(endpoint.path.substr(3)), nullptr, nullptr};
  if constexpr (!std::is_void_v<Message>) e.dictionary = &sendDictionary<Message>;
  if constexpr (!std::is_void_v<Request>) e.typed = &sendTyped<Request>;
  return e;
}

}  // namespace

const std::vector<Entry>& registry() {
  static const std::vector<Entry> entries{
      entry<QBUserInitialiseMessage, UserInitialiseRequest>(user::kInitialise),
      entry<QBUserLoginOrCreateMessage, UserLoginOrCreateRequest>(user::kLoginOrCreate),
      entry<void, UserLoginOrCreateForWebsiteRequest>(user::kLoginOrCreateForWebsite),
      entry<void, UserAppleLoginCallBackRequest>(user::kAppleCallback),
      entry<QBUserGetVerifyCodeMessage, UserGetVerifyCodeRequest>(user::kGetVerifyCode),
      entry<QBUserCheckVerifyCodeMessage, UserCheckVerifyCodeRequest>(user::kCheckVerifyCode),
      entry<QBUserResetPasswordAndLoginMessage, UserResetPasswordAndLoginRequest>(user::kResetPasswordAndLogin),
      entry<QBUserDeleteAccountMessage, UserDeleteAccountRequest>(user::kDeleteAccount),
      entry<QBUserGetUserMessage, UserGetUserRequest>(user::kGetUser),
      entry<QBUserUpdateMessage, UserUpdateRequest>(user::kUpdate),
      entry<QBUserUpdateAdditionalDataMessage, UserUpdateAdditionalDataRequest>(user::kUpdateAdditionalData),
      entry<QBUserUpdateDeviceInfoMessage, UserUpdateDeviceInfoRequest>(user::kUpdateDeviceInfo),
      entry<QBUserUpdateUserConversionMessage, UserUpdateUserConversionRequest>(user::kUpdateUserConversion),
      entry<QBUserUpdateUserDevicePushInfoMessage, UserUpdateUserDevicePushInfoRequest>(
          user::kUpdateUserDevicePushInfo),
      entry<QBUserUpdateUserPropertiesMessage, UserUpdateUserPropertiesRequest>(user::kUpdateUserProperties),
      entry<QBUserUpdateUserTimeZoneMessage, void>(user::kUpdateUserTimeZone),
      entry<QBUserGetConfigMessage, UserGetConfigRequest>(user::kGetConfig),
      entry<QBUserGetFaqMessage, UserGetFaqRequest>(user::kGetFaq),
  };
  return entries;
}

const Entry* findEntry(std::string_view name) {
  for (const auto& e : registry()) {
    if (e.name == name || e.endpoint->path == name) return &e;
  }
  return nullptr;
}

}  // namespace qb::cli
