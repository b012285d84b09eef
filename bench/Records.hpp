// The records the benchmarks decode and encode, in both faces.
//
// get_config's records come from the library. The FAQ, user and initialise records are declared here in
// the library's own way (same keys, same member types) until the library ships them; `UserList` and
// `QBBenchUserListMessage` exist only here, to give the user record a collection-shaped reply.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "frame/DictModel.hpp"
#include "frame/Protocols.hpp"
#include "user/UserEndpoints.hpp"
#include "user/dict/QBAPIClientConfig.hpp"
#include "user/dict/QBUserGetConfigMessage.hpp"
#include "user/typed/UserGetConfigResponse.hpp"

namespace qb::bench {

enum class Gender : std::int64_t { male = 0, female = 1, unknown = 2 };
enum class AutoRenewStatus : std::int64_t { on = 1, off = 2, billingRetrying = 3, billingRetryFail = 4, paused = 5 };

}  // namespace qb::bench

QB_ENUM(qb::bench::Gender, QB_CASE(qb::bench::Gender, male), QB_CASE(qb::bench::Gender, female),
        QB_CASE(qb::bench::Gender, unknown));
QB_ENUM(qb::bench::AutoRenewStatus, QB_CASE(qb::bench::AutoRenewStatus, on), QB_CASE(qb::bench::AutoRenewStatus, off),
        QB_CASE(qb::bench::AutoRenewStatus, billingRetrying), QB_CASE(qb::bench::AutoRenewStatus, billingRetryFail),
        QB_CASE(qb::bench::AutoRenewStatus, paused));

namespace qb::bench {

using qb::ClientConfigModel;
using qb::UserGetConfigResponse;

// --- Typed face ------------------------------------------------------------------------------------

struct FaqModel {
  std::string title;
  std::string content;
  std::int64_t faqType;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("title", &FaqModel::title),
                                                    qb::key("content", &FaqModel::content),
                                                    qb::key("faq_type", &FaqModel::faqType));
  bool operator==(const FaqModel&) const = default;
};

struct UserGetFaqResponse {
  std::vector<FaqModel> faqs;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("faqs", &UserGetFaqResponse::faqs));
  QB_TYPED_RESPONSE(UserGetFaqResponse)
  bool operator==(const UserGetFaqResponse&) const = default;
};

struct UserModel {
  std::int64_t userId;
  std::string uuid;
  std::optional<std::string> nickname = std::nullopt;
  std::optional<std::string> avatarUrl = std::nullopt;
  std::optional<Gender> gender = std::nullopt;
  std::optional<std::string> email = std::nullopt;
  Date createdAt;
  bool guestUser;
  bool vip;
  AutoRenewStatus autoRenewStatus;
  std::int64_t expertConsultationCount;
  std::optional<std::string> appInitVersion = std::nullopt;
  std::optional<std::map<std::string, AnyCodable>> properties = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("user_id", &UserModel::userId), qb::key("uuid", &UserModel::uuid),
      qb::key("nickname", &UserModel::nickname), qb::key("avatar_url", &UserModel::avatarUrl),
      qb::key("gender", &UserModel::gender), qb::key("email", &UserModel::email),
      qb::key("created_at", &UserModel::createdAt), qb::key("guest_user", &UserModel::guestUser),
      qb::key("vip", &UserModel::vip), qb::key("auto_renew_status", &UserModel::autoRenewStatus),
      qb::key("expert_consultation_count", &UserModel::expertConsultationCount),
      qb::key("app_init_version", &UserModel::appInitVersion), qb::key("properties", &UserModel::properties));
  bool operator==(const UserModel&) const = default;
};

struct UserAdditionalDataModel {
  bool existUser;
  bool todayUser;
  bool isVipInHistory;
  std::optional<bool> emailNotificationEnabled = std::nullopt;
  std::optional<std::string> growsPriceLabel = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("exist_user", &UserAdditionalDataModel::existUser),
      qb::key("today_user", &UserAdditionalDataModel::todayUser),
      qb::key("is_vip_in_history", &UserAdditionalDataModel::isVipInHistory),
      qb::key("email_notification_enabled", &UserAdditionalDataModel::emailNotificationEnabled),
      qb::key("grows_price_label", &UserAdditionalDataModel::growsPriceLabel));
  bool operator==(const UserAdditionalDataModel&) const = default;
};

struct UserInitialiseResponse {
  UserModel user;
  UserAdditionalDataModel userAdditionalData;
  std::optional<std::string> accessToken = std::nullopt;
  ClientConfigModel config;
  std::map<std::string, AnyCodable> otherConfigs;
  Date appServerTime;
  std::optional<std::string> country = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(
      qb::key("user", &UserInitialiseResponse::user),
      qb::key("user_additional_data", &UserInitialiseResponse::userAdditionalData),
      qb::key("access_token", &UserInitialiseResponse::accessToken),
      qb::key("config", &UserInitialiseResponse::config),
      qb::key("other_configs", &UserInitialiseResponse::otherConfigs),
      qb::key("app_server_time", &UserInitialiseResponse::appServerTime),
      qb::key("country", &UserInitialiseResponse::country));
  QB_TYPED_RESPONSE(UserInitialiseResponse)
  bool operator==(const UserInitialiseResponse&) const = default;
};

// Many users in one reply: the user record in a collection-shaped reply.
struct UserList {
  std::vector<UserModel> users;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("users", &UserList::users));
  QB_TYPED_RESPONSE(UserList)
  bool operator==(const UserList&) const = default;
};

// --- Dictionary face -------------------------------------------------------------------------------

class QBAPIFaq final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIFaq, "Faq")
  QB_VALUE(title, Title)
  QB_VALUE(content, Content)
  QB_VALUE(faqType, FaqType)
  QB_FIELDS(QB_REQUIRED(title, "title"), QB_REQUIRED(content, "content"), QB_REQUIRED(faqType, "faq_type"))
};

class QBAPIUser final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIUser, "User")
  QB_VALUE(userId, UserId)
  QB_VALUE(uuid, Uuid)
  QB_VALUE(nickname, Nickname)
  QB_VALUE(avatarUrl, AvatarUrl)
  QB_INTEGER(gender, Gender)
  QB_VALUE(email, Email)
  QB_VALUE(createdAt, CreatedAt)
  QB_VALUE(guestUser, GuestUser)
  QB_VALUE(vip, Vip)
  QB_INTEGER(autoRenewStatus, AutoRenewStatus)
  QB_VALUE(expertConsultationCount, ExpertConsultationCount)
  QB_VALUE(appInitVersion, AppInitVersion)
  QB_MAP(properties, Properties)
  QB_FIELDS(QB_REQUIRED(userId, "user_id"), QB_REQUIRED(uuid, "uuid"), QB_OPTIONAL(nickname, "nickname"),
            QB_OPTIONAL(avatarUrl, "avatar_url"), QB_OPTIONAL(gender, "gender"), QB_OPTIONAL(email, "email"),
            QB_REQUIRED(createdAt, "created_at"), QB_REQUIRED(guestUser, "guest_user"), QB_REQUIRED(vip, "vip"),
            QB_OPTIONAL(autoRenewStatus, "auto_renew_status"),
            QB_REQUIRED(expertConsultationCount, "expert_consultation_count"),
            QB_OPTIONAL(appInitVersion, "app_init_version"), QB_OPTIONAL(properties, "properties"))
};

class QBAPIUserAdditionalData final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIUserAdditionalData, "UserAdditionalData")
  QB_VALUE(existUser, ExistUser)
  QB_VALUE(todayUser, TodayUser)
  QB_VALUE(isVipInHistory, IsVipInHistory)
  QB_VALUE(emailNotificationEnabled, EmailNotificationEnabled)
  QB_VALUE(growsPriceLabel, GrowsPriceLabel)
  QB_FIELDS(QB_REQUIRED(existUser, "exist_user"), QB_REQUIRED(todayUser, "today_user"),
            QB_REQUIRED(isVipInHistory, "is_vip_in_history"),
            QB_OPTIONAL(emailNotificationEnabled, "email_notification_enabled"),
            QB_OPTIONAL(growsPriceLabel, "grows_price_label"))
};

class QBUserGetFaqMessage final : public DictMessage<QBUserGetFaqMessage> {
  QB_DICT_MESSAGE(QBUserGetFaqMessage, "GetFaq", user::kGetFaq)
  QB_INTEGER(languageCode, LanguageCode)
  QB_INTEGER(deviceType, DeviceType)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_OPTIONAL(deviceType, "device_type"))
  QB_MODEL_LIST(QBAPIFaq, faqs, Faqs)
  QB_RESULTS(QB_OPTIONAL(faqs, "faqs"))
};

class QBUserInitialiseMessage final : public DictMessage<QBUserInitialiseMessage> {
  QB_DICT_MESSAGE(QBUserInitialiseMessage, "Initialise", user::kInitialise)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"))
  QB_MODEL(QBAPIUser, user, User)
  QB_MODEL(QBAPIUserAdditionalData, userAdditionalData, UserAdditionalData)
  QB_VALUE(accessToken, AccessToken)
  QB_MODEL(QBAPIClientConfig, config, Config)
  QB_VALUE(otherConfigs, OtherConfigs)
  QB_VALUE(appServerTime, AppServerTime)
  QB_VALUE(country, Country)
  QB_RESULTS(QB_OPTIONAL(user, "user"), QB_OPTIONAL(userAdditionalData, "user_additional_data"),
             QB_OPTIONAL(accessToken, "access_token"), QB_OPTIONAL(config, "config"),
             QB_OPTIONAL(otherConfigs, "other_configs"), QB_OPTIONAL(appServerTime, "app_server_time"),
             QB_OPTIONAL(country, "country"))
};

// The Dictionary face of UserList.
class QBBenchUserListMessage final : public DictMessage<QBBenchUserListMessage> {
  QB_DICT_MESSAGE(QBBenchUserListMessage, "BenchUserList", user::kGetUser)
  QB_INTEGER(languageCode, LanguageCode)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"))
  QB_MODEL_LIST(QBAPIUser, users, Users)
  QB_RESULTS(QB_OPTIONAL(users, "users"))
};

}  // namespace qb::bench
