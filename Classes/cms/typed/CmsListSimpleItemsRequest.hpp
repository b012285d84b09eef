#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsListSimpleItemsResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// list_simple_items: the simple items of a content type.
struct CmsListSimpleItemsRequest {
  LanguageCode languageCode;
  std::string countryCode;
  std::string contentType;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("language_code", &CmsListSimpleItemsRequest::languageCode),
                                                    qb::key("country_code", &CmsListSimpleItemsRequest::countryCode),
                                                    qb::key("content_type", &CmsListSimpleItemsRequest::contentType));
  QB_TYPED_REQUEST(cms::kListSimpleItems, CmsListSimpleItemsResponse)
  bool operator==(const CmsListSimpleItemsRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsListSimpleItemsRequest>);

}  // namespace qb
