#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>
#include <QBComponentAPI/user/typed/UserUpdateUserConversionResponse.hpp>

namespace qb {

/// update_user_conversion: the install's attribution data.
struct UserUpdateUserConversionRequest {
  bool isOrganic;
  std::optional<std::string> mediaSource = std::nullopt;
  std::optional<std::string> campaign = std::nullopt;
  std::optional<std::string> campaignId = std::nullopt;
  std::optional<std::int64_t> costCentsUsd = std::nullopt;
  std::optional<Date> installTime = std::nullopt;
  std::optional<std::string> channel = std::nullopt;
  std::optional<std::string> keywords = std::nullopt;
  std::optional<std::string> absetId = std::nullopt;
  std::optional<std::string> adId = std::nullopt;
  std::optional<std::string> adType = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("is_organic", &UserUpdateUserConversionRequest::isOrganic),
                     qb::key("media_source", &UserUpdateUserConversionRequest::mediaSource),
                     qb::key("campaign", &UserUpdateUserConversionRequest::campaign),
                     qb::key("campaign_id", &UserUpdateUserConversionRequest::campaignId),
                     qb::key("cost_cents_usd", &UserUpdateUserConversionRequest::costCentsUsd),
                     qb::key("install_time", &UserUpdateUserConversionRequest::installTime),
                     qb::key("channel", &UserUpdateUserConversionRequest::channel),
                     qb::key("keywords", &UserUpdateUserConversionRequest::keywords),
                     qb::key("abset_id", &UserUpdateUserConversionRequest::absetId),
                     qb::key("ad_id", &UserUpdateUserConversionRequest::adId),
                     qb::key("ad_type", &UserUpdateUserConversionRequest::adType));
  QB_TYPED_REQUEST(user::kUpdateUserConversion, UserUpdateUserConversionResponse)
  bool operator==(const UserUpdateUserConversionRequest&) const = default;
};
static_assert(APIEncodableRequest<UserUpdateUserConversionRequest>);

}  // namespace qb
