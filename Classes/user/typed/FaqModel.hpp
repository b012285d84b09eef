#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One entry of the account FAQ.
struct FaqModel {
  std::string title;
  std::string content;
  std::int64_t faqType;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("title", &FaqModel::title), qb::key("content", &FaqModel::content),
                     qb::key("faq_type", &FaqModel::faqType));
  bool operator==(const FaqModel&) const = default;
};
static_assert(APIModel<FaqModel>);

}  // namespace qb
