#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// The attribution of an image. "authorlink" is one word on the wire.
struct CopyrightModel {
  std::optional<std::string> author = std::nullopt;
  std::optional<std::vector<std::string>> certIcons = std::nullopt;
  std::optional<std::string> certUrl = std::nullopt;
  std::optional<std::string> detailUrl = std::nullopt;
  std::optional<std::string> authorlink = std::nullopt;
  std::optional<std::string> license = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("author", &CopyrightModel::author), qb::key("cert_icons", &CopyrightModel::certIcons),
                     qb::key("cert_url", &CopyrightModel::certUrl), qb::key("detail_url", &CopyrightModel::detailUrl),
                     qb::key("authorlink", &CopyrightModel::authorlink), qb::key("license", &CopyrightModel::license));
  bool operator==(const CopyrightModel&) const = default;
};
static_assert(APIModel<CopyrightModel>);

}  // namespace qb
