#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/user/typed/FaqModel.hpp>

namespace qb {

/// The reply of get_faq.
struct UserGetFaqResponse {
  std::vector<FaqModel> faqs;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("faqs", &UserGetFaqResponse::faqs));
  QB_TYPED_RESPONSE(UserGetFaqResponse)
  bool operator==(const UserGetFaqResponse&) const = default;
};
static_assert(APIDecodableResponse<UserGetFaqResponse>);

}  // namespace qb
