#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update_user_device_push_info: the push key with the time zone, language and country.
class QBUserUpdateUserDevicePushInfoMessage final : public DictMessage<QBUserUpdateUserDevicePushInfoMessage> {
  QB_DICT_MESSAGE(QBUserUpdateUserDevicePushInfoMessage, "UpdateUserDevicePushInfo", user::kUpdateUserDevicePushInfo)
  static std::shared_ptr<QBUserUpdateUserDevicePushInfoMessage> initWithData(std::optional<JsonValue> timeZone,
                                                                             std::optional<JsonValue> pushKey,
                                                                             std::int64_t languageCode,
                                                                             std::optional<JsonValue> countryCode) {
    return make<&Self::timeZone_, &Self::pushKey_, &Self::languageCode_, &Self::countryCode_>(
        std::move(timeZone), std::move(pushKey), languageCode, std::move(countryCode));
  }

  QB_VALUE(timeZone, TimeZone)
  QB_VALUE(pushKey, PushKey)
  QB_INTEGER(languageCode, LanguageCode)
  QB_VALUE(countryCode, CountryCode)
  QB_PARAMS(QB_OPTIONAL(timeZone, "time_zone"), QB_OPTIONAL(pushKey, "push_key"),
            QB_OPTIONAL(languageCode, "language_code"), QB_OPTIONAL(countryCode, "country_code"))
  QB_RESULTS()
};

}  // namespace qb
