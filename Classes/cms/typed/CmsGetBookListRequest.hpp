#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetBookListResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_book_list: the books offered for a language and country.
struct CmsGetBookListRequest {
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("language_code", &CmsGetBookListRequest::languageCode),
                                                    qb::key("country_code", &CmsGetBookListRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetBookList, CmsGetBookListResponse)
  bool operator==(const CmsGetBookListRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetBookListRequest>);

}  // namespace qb
