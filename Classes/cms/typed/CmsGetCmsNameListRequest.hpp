#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameListResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_cms_name_list: several content names by id. The ids go out as a JSON array.
struct CmsGetCmsNameListRequest {
  std::vector<std::string> cmsNameUids;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("cms_name_uids", &CmsGetCmsNameListRequest::cmsNameUids),
                                                    qb::key("language_code", &CmsGetCmsNameListRequest::languageCode),
                                                    qb::key("country_code", &CmsGetCmsNameListRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetCmsNameList, CmsGetCmsNameListResponse)
  bool operator==(const CmsGetCmsNameListRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetCmsNameListRequest>);

}  // namespace qb
