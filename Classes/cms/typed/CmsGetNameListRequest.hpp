#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetNameListResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_name_list: the simple items of a category.
struct CmsGetNameListRequest {
  LanguageCode languageCode;
  std::string countryCode;
  std::string category;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("language_code", &CmsGetNameListRequest::languageCode),
                                                    qb::key("country_code", &CmsGetNameListRequest::countryCode),
                                                    qb::key("category", &CmsGetNameListRequest::category));
  QB_TYPED_REQUEST(cms::kGetNameList, CmsGetNameListResponse)
  bool operator==(const CmsGetNameListRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetNameListRequest>);

}  // namespace qb
