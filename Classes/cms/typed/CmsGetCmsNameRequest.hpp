#pragma once

#include <QBComponentAPI/cms/CmsCatalogue.hpp>
#include <QBComponentAPI/cms/typed/CmsGetCmsNameResponse.hpp>
#include <QBComponentAPI/frame/Protocols.hpp>

namespace qb {

/// get_cms_name: one content name by its id.
struct CmsGetCmsNameRequest {
  std::string cmsNameUid;
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("cms_name_uid", &CmsGetCmsNameRequest::cmsNameUid),
                                                    qb::key("language_code", &CmsGetCmsNameRequest::languageCode),
                                                    qb::key("country_code", &CmsGetCmsNameRequest::countryCode));
  QB_TYPED_REQUEST(cms::kGetCmsName, CmsGetCmsNameResponse)
  bool operator==(const CmsGetCmsNameRequest&) const = default;
};
static_assert(APIEncodableRequest<CmsGetCmsNameRequest>);

}  // namespace qb
