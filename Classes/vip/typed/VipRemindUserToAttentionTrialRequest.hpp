#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <QBComponentAPI/vip/typed/VipRemindUserToAttentionTrialResponse.hpp>

namespace qb {

/// remind_user_to_attention_trial: asks the service to e-mail the user `daysToRemind` days before the
/// trial period ends. The number is passed through unchecked.
struct VipRemindUserToAttentionTrialRequest {
  std::optional<LanguageCode> languageCode = std::nullopt;
  std::int64_t daysToRemind;
  std::string email;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("language_code", &VipRemindUserToAttentionTrialRequest::languageCode),
                     qb::key("days_to_remind", &VipRemindUserToAttentionTrialRequest::daysToRemind),
                     qb::key("email", &VipRemindUserToAttentionTrialRequest::email));
  QB_TYPED_REQUEST(vip::kRemindUserToAttentionTrial, VipRemindUserToAttentionTrialResponse)
  bool operator==(const VipRemindUserToAttentionTrialRequest&) const = default;
};
static_assert(APIEncodableRequest<VipRemindUserToAttentionTrialRequest>);

}  // namespace qb
