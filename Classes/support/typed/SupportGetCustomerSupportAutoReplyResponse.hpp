#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/enums/AutoReplyClassification.hpp>
#include <QBComponentAPI/support/typed/AutoReplyArticleModel.hpp>

namespace qb {

/// The reply of get_customer_support_auto_reply: the question's topic (an unknown one reads as `other`)
/// and the articles that match it.
struct SupportGetCustomerSupportAutoReplyResponse {
  AutoReplyClassification classification;
  std::optional<std::vector<AutoReplyArticleModel>> autoReplyArticle = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("classification", &SupportGetCustomerSupportAutoReplyResponse::classification),
                     qb::key("auto_reply_article", &SupportGetCustomerSupportAutoReplyResponse::autoReplyArticle));
  QB_TYPED_RESPONSE(SupportGetCustomerSupportAutoReplyResponse)
  bool operator==(const SupportGetCustomerSupportAutoReplyResponse&) const = default;
};
static_assert(APIDecodableResponse<SupportGetCustomerSupportAutoReplyResponse>);

}  // namespace qb
