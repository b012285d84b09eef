#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/typed/SupportGetCustomerSupportAutoReplyResponse.hpp>

namespace qb {

/// get_customer_support_auto_reply: an automatic answer to a question the user typed.
struct SupportGetCustomerSupportAutoReplyRequest {
  LanguageCode languageCode;
  std::string countryCode;
  std::string content;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("language_code", &SupportGetCustomerSupportAutoReplyRequest::languageCode),
                     qb::key("country_code", &SupportGetCustomerSupportAutoReplyRequest::countryCode),
                     qb::key("content", &SupportGetCustomerSupportAutoReplyRequest::content));
  QB_TYPED_REQUEST(support::kGetCustomerSupportAutoReply, SupportGetCustomerSupportAutoReplyResponse)
  bool operator==(const SupportGetCustomerSupportAutoReplyRequest&) const = default;
};
static_assert(APIEncodableRequest<SupportGetCustomerSupportAutoReplyRequest>);

}  // namespace qb
