#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListsResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_cms_name_lists: the curated name lists of a content type.
struct CmsGetCmsNameListsRequest {
  std::string contentType;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("content_type", &CmsGetCmsNameListsRequest::contentType),
                                                    qb::key("language_code", &CmsGetCmsNameListsRequest::languageCode),
                                                    qb::key("country_code", &CmsGetCmsNameListsRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetCmsNameLists, CmsGetCmsNameListsResponse)
  bool operator==(const CmsGetCmsNameListsRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetCmsNameListsRequest>);

}  // namespace qb
