#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetStaticContentResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_static_content: the static text of a content type.
struct CmsGetStaticContentRequest {
  std::string contentType;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("content_type", &CmsGetStaticContentRequest::contentType),
                                                    qb::key("language_code", &CmsGetStaticContentRequest::languageCode),
                                                    qb::key("country_code", &CmsGetStaticContentRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetStaticContent, CmsGetStaticContentResponse)
  bool operator==(const CmsGetStaticContentRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetStaticContentRequest>);

}  // namespace qb
