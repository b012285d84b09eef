#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetSimpleCmsNameListResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_simple_cms_name_list: the summaries of several content names by id. The ids go out as
/// a JSON array.
struct CmsGetSimpleCmsNameListRequest {
  std::vector<std::string> cmsNameUids;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("cms_name_uids", &CmsGetSimpleCmsNameListRequest::cmsNameUids),
                     qb::key("language_code", &CmsGetSimpleCmsNameListRequest::languageCode),
                     qb::key("country_code", &CmsGetSimpleCmsNameListRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetSimpleCmsNameList, CmsGetSimpleCmsNameListResponse)
  bool operator==(const CmsGetSimpleCmsNameListRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetSimpleCmsNameListRequest>);

}  // namespace qb
