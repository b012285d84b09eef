#pragma once

#include <QBComponentAPI/frame/Protocols.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>
#include <QBComponentAPI/item/typed/ItemGetItemDetailResponse.hpp>

namespace qb {

/// get_item_detail: one item of the collection in full, with its names in a language and country.
struct ItemGetItemDetailRequest {
  std::int64_t itemId;
  LanguageCode languageCode;
  std::string countryCode;
  /// Ask for signed image addresses.
  std::optional<bool> signImageUrl = std::nullopt;

  static constexpr auto codingKeys = qb::codingKeys(qb::key("item_id", &ItemGetItemDetailRequest::itemId),
                                                    qb::key("language_code", &ItemGetItemDetailRequest::languageCode),
                                                    qb::key("country_code", &ItemGetItemDetailRequest::countryCode),
                                                    qb::key("sign_image_url", &ItemGetItemDetailRequest::signImageUrl));
  QB_TYPED_REQUEST(item::kGetItemDetail, ItemGetItemDetailResponse)
  bool operator==(const ItemGetItemDetailRequest&) const = default;
};
static_assert(APIEncodableRequest<ItemGetItemDetailRequest>);

}  // namespace qb
