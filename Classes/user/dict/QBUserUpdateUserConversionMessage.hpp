#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update_user_conversion: the install's attribution data.
class QBUserUpdateUserConversionMessage final : public DictMessage<QBUserUpdateUserConversionMessage> {
  QB_DICT_MESSAGE(QBUserUpdateUserConversionMessage, "UpdateUserConversion", user::kUpdateUserConversion)
  static std::shared_ptr<QBUserUpdateUserConversionMessage> initWithData(
      std::optional<JsonValue> isOrganic, std::optional<JsonValue> mediaSource, std::optional<JsonValue> campaign,
      std::optional<JsonValue> campaignId, std::optional<JsonValue> costCentsUsd, std::optional<JsonValue> installTime,
      std::optional<JsonValue> channel, std::optional<JsonValue> keywords, std::optional<JsonValue> absetId,
      std::optional<JsonValue> adId, std::optional<JsonValue> adType) {
    return make<&Self::isOrganic_, &Self::mediaSource_, &Self::campaign_, &Self::campaignId_, &Self::costCentsUsd_,
                &Self::installTime_, &Self::channel_, &Self::keywords_, &Self::absetId_, &Self::adId_, &Self::adType_>(
        std::move(isOrganic), std::move(mediaSource), std::move(campaign), std::move(campaignId),
        std::move(costCentsUsd), std::move(installTime), std::move(channel), std::move(keywords), std::move(absetId),
        std::move(adId), std::move(adType));
  }

  QB_VALUE(isOrganic, IsOrganic)
  QB_VALUE(mediaSource, MediaSource)
  QB_VALUE(campaign, Campaign)
  QB_VALUE(campaignId, CampaignId)
  QB_VALUE(costCentsUsd, CostCentsUsd)
  QB_VALUE(installTime, InstallTime)
  QB_VALUE(channel, Channel)
  QB_VALUE(keywords, Keywords)
  QB_VALUE(absetId, AbsetId)
  QB_VALUE(adId, AdId)
  QB_VALUE(adType, AdType)
  QB_PARAMS(QB_REQUIRED(isOrganic, "is_organic"), QB_OPTIONAL(mediaSource, "media_source"),
            QB_OPTIONAL(campaign, "campaign"), QB_OPTIONAL(campaignId, "campaign_id"),
            QB_OPTIONAL(costCentsUsd, "cost_cents_usd"), QB_OPTIONAL(installTime, "install_time"),
            QB_OPTIONAL(channel, "channel"), QB_OPTIONAL(keywords, "keywords"), QB_OPTIONAL(absetId, "abset_id"),
            QB_OPTIONAL(adId, "ad_id"), QB_OPTIONAL(adType, "ad_type"))
  QB_RESULTS()
};

}  // namespace qb
