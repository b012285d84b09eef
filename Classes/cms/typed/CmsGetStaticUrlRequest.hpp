#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticUrlResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_static_url: the light and dark pages of a content type, or of one piece of it by uid.
struct CmsGetStaticUrlRequest {
  std::string contentType;
  LanguageCode languageCode;
  std::string countryCode;
  std::optional<std::string> uid = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("content_type", &CmsGetStaticUrlRequest::contentType),
                                                    qb::key("language_code", &CmsGetStaticUrlRequest::languageCode),
                                                    qb::key("country_code", &CmsGetStaticUrlRequest::countryCode),
                                                    qb::key("uid", &CmsGetStaticUrlRequest::uid));
  QB_TYPED_REQUEST(cms::kGetStaticUrl, CmsGetStaticUrlResponse)
  bool operator==(const CmsGetStaticUrlRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetStaticUrlRequest>);

}  // namespace qb
