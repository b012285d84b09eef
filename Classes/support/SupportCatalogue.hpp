// Customer support: every endpoint and every record, once (see frame/Catalogue.hpp).
//
// send_support_ticket has two Dictionary-face messages: SPSupportSendSupportTicketMessage, which can
// carry extra fields, is the endpoint's Dictionary face; QBSupportSendSupportTicketMessage, the older
// message without them, has a line of its own on the same path. Everything that lists endpoints counts
// a path once (see qb::isAdditionalMessage).
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_SUPPORT_ENDPOINTS(BOTH, DICT, TYPED)                                                                \
  BOTH(kGetCustomerSupportAutoReply, "v3/support/get_customer_support_auto_reply", post, required,            \
       SPSupportGetCustomerSupportAutoReplyMessage, SupportGetCustomerSupportAutoReplyRequest)                \
  BOTH(kGetFaqFromCms, "v3/support/get_faq_from_cms", get, required, SPSupportGetFaqFromCmsMessage,           \
       SupportGetFaqFromCmsRequest)                                                                           \
  BOTH(kGetPopularFaqFromCms, "v3/support/get_popular_faq_from_cms", get, required,                           \
       SPSupportGetPopularFaqFromCmsMessage, SupportGetPopularFaqFromCmsRequest)                              \
  BOTH(kSendSupportTicket, "v3/support/send_support_ticket", post, required, SPSupportSendSupportTicketMessage, \
       SupportSendSupportTicketRequest)                                                                       \
  DICT(kSendSupportTicketWithoutExtraFields, "v3/support/send_support_ticket", post, required,                \
       QBSupportSendSupportTicketMessage)

/// Dictionary-face model, Typed-face model
#define QB_SUPPORT_RECORDS(BOTH, DICT, TYPED)          \
  BOTH(SPAPIAutoReplyArticle, AutoReplyArticleModel) \
  BOTH(SPAPICmsFaqArticle, CmsFaqArticleModel)       \
  BOTH(SPAPICmsFaqCategory, CmsFaqCategoryModel)

QB_CATALOGUE(support, QB_SUPPORT_ENDPOINTS, QB_SUPPORT_RECORDS)
