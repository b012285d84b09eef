#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of remind_user_to_attention_trial; it carries nothing but success, and any reply object is
/// accepted.
struct VipRemindUserToAttentionTrialResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(VipRemindUserToAttentionTrialResponse)
  bool operator==(const VipRemindUserToAttentionTrialResponse&) const = default;
};
static_assert(APIDecodableResponse<VipRemindUserToAttentionTrialResponse>);

}  // namespace qb
