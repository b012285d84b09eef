#pragma once

#include <map>

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/enums/AutoRenewStatus.hpp>
#include <QBComponentAPI/user/enums/Gender.hpp>

namespace qb {

/// The account: identity, profile, subscription flags and free-form properties.
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
static_assert(APIModel<UserModel>);

}  // namespace qb
