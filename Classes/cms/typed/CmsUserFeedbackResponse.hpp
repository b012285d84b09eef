#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of user_feedback; it carries nothing but success.
struct CmsUserFeedbackResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(CmsUserFeedbackResponse)
  bool operator==(const CmsUserFeedbackResponse&) const = default;
};
static_assert(APIDecodableResponse<CmsUserFeedbackResponse>);

}  // namespace qb
