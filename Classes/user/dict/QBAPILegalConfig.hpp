#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// The current and next user agreement and the privacy documents.
class QBAPILegalConfig final : public QBAPIModel {
  QB_DICT_MODEL(QBAPILegalConfig, "LegalConfig")
  QB_VALUE(agreementUrl, AgreementUrl)
  QB_VALUE(agreementVersion, AgreementVersion)
  QB_VALUE(nextAgreementUrl, NextAgreementUrl)
  QB_VALUE(nextAgreementVersion, NextAgreementVersion)
  QB_VALUE(nextAgreementAvailableAt, NextAgreementAvailableAt)
  QB_VALUE(thirdPartyNoticesUrl, ThirdPartyNoticesUrl)
  QB_VALUE(privacyPolicyUrl, PrivacyPolicyUrl)
  QB_VALUE(dataManagementUrl, DataManagementUrl)
  QB_VALUE(privacyPolicyVersion, PrivacyPolicyVersion)
  QB_FIELDS(QB_OPTIONAL(agreementUrl, "agreement_url"), QB_OPTIONAL(agreementVersion, "agreement_version"),
            QB_OPTIONAL(nextAgreementUrl, "next_agreement_url"),
            QB_OPTIONAL(nextAgreementVersion, "next_agreement_version"),
            QB_OPTIONAL(nextAgreementAvailableAt, "next_agreement_available_at"),
            QB_OPTIONAL(thirdPartyNoticesUrl, "third_party_notices_url"),
            QB_OPTIONAL(privacyPolicyUrl, "privacy_policy_url"), QB_OPTIONAL(dataManagementUrl, "data_management_url"),
            QB_REQUIRED(privacyPolicyVersion, "privacy_policy_version"))
};

}  // namespace qb
