#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The reply of send_support_ticket; it carries nothing but success.
struct SupportSendSupportTicketResponse {
  static constexpr auto codingKeys = qb::codingKeys();
  QB_TYPED_RESPONSE(SupportSendSupportTicketResponse)
  bool operator==(const SupportSendSupportTicketResponse&) const = default;
};
static_assert(APIDecodableResponse<SupportSendSupportTicketResponse>);

}  // namespace qb
