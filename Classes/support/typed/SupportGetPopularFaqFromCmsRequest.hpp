#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/support/SupportCatalogue.hpp>
#include <QBComponentAPI/support/typed/SupportGetPopularFaqFromCmsResponse.hpp>

namespace qb {

/// get_popular_faq_from_cms: the most read FAQ, by category, for a language and country.
struct SupportGetPopularFaqFromCmsRequest {
  LanguageCode languageCode;
  std::string countryCode;

  static constexpr auto codingKeys =
      qb::codingKeys(qb::key("language_code", &SupportGetPopularFaqFromCmsRequest::languageCode),
                     qb::key("country_code", &SupportGetPopularFaqFromCmsRequest::countryCode));
  QB_TYPED_REQUEST(support::kGetPopularFaqFromCms, SupportGetPopularFaqFromCmsResponse)
  bool operator==(const SupportGetPopularFaqFromCmsRequest&) const = default;
};
static_assert(APIEncodableRequest<SupportGetPopularFaqFromCmsRequest>);

}  // namespace qb
