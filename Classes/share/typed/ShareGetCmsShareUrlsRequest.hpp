#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/share/ShareCatalogue.hpp>
#include <QBComponentAPI/share/typed/ShareGetCmsShareUrlsResponse.hpp>
#include <map>

namespace qb {

/// get_cms_share_urls: share links for a piece of content. The item, share ids and fields are
/// passed through as given.
struct ShareGetCmsShareUrlsRequest {
  std::string uid;
  std::vector<std::string> contentTypes;
  LanguageCode languageCode;
  std::string countryCode;
  std::optional<std::string> itemId = std::nullopt;
  std::optional<std::string> itemType = std::nullopt;
  std::vector<std::string> shareIds;
  std::optional<std::map<std::string, AnyCodable>> fields = std::nullopt;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("uid", &ShareGetCmsShareUrlsRequest::uid),
                     qb::key("content_types", &ShareGetCmsShareUrlsRequest::contentTypes),
                     qb::key("language_code", &ShareGetCmsShareUrlsRequest::languageCode),
                     qb::key("country_code", &ShareGetCmsShareUrlsRequest::countryCode),
                     qb::key("item_id", &ShareGetCmsShareUrlsRequest::itemId),
                     qb::key("item_type", &ShareGetCmsShareUrlsRequest::itemType),
                     qb::key("share_ids", &ShareGetCmsShareUrlsRequest::shareIds),
                     qb::key("fields", &ShareGetCmsShareUrlsRequest::fields));
  QB_TYPED_REQUEST(share::kGetCmsShareUrls, ShareGetCmsShareUrlsResponse)
  bool operator==(const ShareGetCmsShareUrlsRequest&) const = default;
};
static_assert(APIEncodableRequest<ShareGetCmsShareUrlsRequest>);

}  // namespace qb
