#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

class QBAPIItemDetail;

/// get_item_detail: one item of the collection in full, with its names in a language and country.
class QBItemGetItemDetailMessage final : public DictMessage<QBItemGetItemDetailMessage> {
  QB_DICT_MESSAGE(QBItemGetItemDetailMessage, "GetItemDetail", item::kGetItemDetail)
  /// languageCode is the number of a qb::LanguageCode; signImageUrl is a number used as a boolean (ask
  /// for signed image addresses).
  static std::shared_ptr<QBItemGetItemDetailMessage> initWithData(std::optional<JsonValue> itemId,
                                                                  std::int64_t languageCode,
                                                                  std::optional<JsonValue> countryCode,
                                                                  std::optional<JsonValue> signImageUrl) {
    return make<&Self::itemId_, &Self::languageCode_, &Self::countryCode_, &Self::signImageUrl_>(
        std::move(itemId), languageCode, std::move(countryCode), std::move(signImageUrl));
  }

  QB_VALUE(itemId, ItemId)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_VALUE(signImageUrl, SignImageUrl)
  QB_PARAMS(QB_REQUIRED(itemId, "item_id"), QB_OPTIONAL(languageCode, "language_code"),
            QB_REQUIRED(countryCode, "country_code"), QB_OPTIONAL(signImageUrl, "sign_image_url"))

  QB_MODEL(QBAPIItemDetail, item, Item)
  QB_RESULTS(QB_OPTIONAL(item, "item"))
};

}  // namespace qb
