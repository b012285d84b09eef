#pragma once

#include <QBComponentAPI/cms/typed/CmsStaticUrlModel.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// One article suggested as the answer to a question the user typed.
struct AutoReplyArticleModel {
  std::optional<std::string> question = std::nullopt;
  std::optional<CmsStaticUrlModel> cmsStaticUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("question", &AutoReplyArticleModel::question),
                                                    qb::key("cms_static_url", &AutoReplyArticleModel::cmsStaticUrl));
  bool operator==(const AutoReplyArticleModel&) const = default;
};
static_assert(APIModel<AutoReplyArticleModel>);

}  // namespace qb
