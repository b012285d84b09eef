#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/enums/SupportType.hpp>
#include <QBComponentAPI/support/typed/SupportSendSupportTicketResponse.hpp>
#include <map>

namespace qb {

/// send_support_ticket: a message to the support team. The images and tags go out as JSON lists, the
/// extra fields as a JSON object of the values as given.
struct SupportSendSupportTicketRequest {
  std::string email;
  SupportType supportType;
  LanguageCode languageCode;
  std::string countryCode;
  std::optional<std::string> content = std::nullopt;
  std::optional<std::vector<std::string>> images = std::nullopt;
  std::optional<std::vector<std::string>> tags = std::nullopt;
  std::optional<std::map<std::string, AnyCodable>> extraFields = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("email", &SupportSendSupportTicketRequest::email),
                     qb::key("support_type", &SupportSendSupportTicketRequest::supportType),
                     qb::key("language_code", &SupportSendSupportTicketRequest::languageCode),
                     qb::key("country_code", &SupportSendSupportTicketRequest::countryCode),
                     qb::key("content", &SupportSendSupportTicketRequest::content),
                     qb::key("images", &SupportSendSupportTicketRequest::images),
                     qb::key("tags", &SupportSendSupportTicketRequest::tags),
                     qb::key("extra_fields", &SupportSendSupportTicketRequest::extraFields));
  QB_TYPED_REQUEST(support::kSendSupportTicket, SupportSendSupportTicketResponse)
  bool operator==(const SupportSendSupportTicketRequest&) const = default;
};
static_assert(APIEncodableRequest<SupportSendSupportTicketRequest>);

}  // namespace qb
