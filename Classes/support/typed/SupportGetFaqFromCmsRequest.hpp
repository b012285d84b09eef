#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/typed/SupportGetFaqFromCmsResponse.hpp>

namespace qb {

/// get_faq_from_cms: the FAQ catalogue, by category, for a language and country.
struct SupportGetFaqFromCmsRequest {
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("language_code", &SupportGetFaqFromCmsRequest::languageCode),
                     qb::key("country_code", &SupportGetFaqFromCmsRequest::countryCode));
  QB_TYPED_REQUEST(support::kGetFaqFromCms, SupportGetFaqFromCmsResponse)
  bool operator==(const SupportGetFaqFromCmsRequest&) const = default;
};
static_assert(APIEncodableRequest<SupportGetFaqFromCmsRequest>);

}  // namespace qb
