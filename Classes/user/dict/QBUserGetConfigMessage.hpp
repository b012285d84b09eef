#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIClientConfig;

/// get_config: the client configuration for a language and country.
class QBUserGetConfigMessage final : public DictMessage<QBUserGetConfigMessage> {
  QB_DICT_MESSAGE(QBUserGetConfigMessage, "GetConfig", user::kGetConfig)
  /// languageCode is the number of a qb::LanguageCode.
  static std::shared_ptr<QBUserGetConfigMessage> initWithData(std::int64_t languageCode,
                                                              std::optional<JsonValue> countryCode) {
    return make<&Self::languageCode_, &Self::countryCode_>(languageCode, std::move(countryCode));
  }

  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_REQUIRED(countryCode, "country_code"))

  QB_MODEL(QBAPIClientConfig, config, Config)
  /// Free-form configuration values, kept exactly as the reply gave them.
  QB_VALUE(otherConfigs, OtherConfigs)
  QB_RESULTS(QB_OPTIONAL(config, "config"), QB_OPTIONAL(otherConfigs, "other_configs"))
};

}  // namespace qb
