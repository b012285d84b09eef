#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The current and next user agreement and the privacy documents.
struct LegalConfigModel {
  std::optional<std::string> agreementUrl = std::nullopt;
  std::int64_t agreementVersion;
  std::optional<std::string> nextAgreementUrl = std::nullopt;
  std::optional<std::int64_t> nextAgreementVersion = std::nullopt;
  std::optional<Date> nextAgreementAvailableAt = std::nullopt;
  std::optional<std::string> thirdPartyNoticesUrl = std::nullopt;
  std::optional<std::string> privacyPolicyUrl = std::nullopt;
  std::optional<std::string> dataManagementUrl = std::nullopt;
  std::int64_t privacyPolicyVersion;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("agreement_url", &LegalConfigModel::agreementUrl),
                     qb::key("agreement_version", &LegalConfigModel::agreementVersion),
                     qb::key("next_agreement_url", &LegalConfigModel::nextAgreementUrl),
                     qb::key("next_agreement_version", &LegalConfigModel::nextAgreementVersion),
                     qb::key("next_agreement_available_at", &LegalConfigModel::nextAgreementAvailableAt),
                     qb::key("third_party_notices_url", &LegalConfigModel::thirdPartyNoticesUrl),
                     qb::key("privacy_policy_url", &LegalConfigModel::privacyPolicyUrl),
                     qb::key("data_management_url", &LegalConfigModel::dataManagementUrl),
                     qb::key("privacy_policy_version", &LegalConfigModel::privacyPolicyVersion));
  bool operator==(const LegalConfigModel&) const = default;
};
static_assert(APIModel<LegalConfigModel>);

}  // namespace qb
