#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update_user_time_zone: the user's time zone.
class QBUserUpdateUserTimeZoneMessage final : public DictMessage<QBUserUpdateUserTimeZoneMessage> {
  QB_DICT_MESSAGE(QBUserUpdateUserTimeZoneMessage, "UpdateUserTimeZone", user::kUpdateUserTimeZone)
  static std::shared_ptr<QBUserUpdateUserTimeZoneMessage> initWithData(std::optional<JsonValue> timeZone) {
    return make<&Self::timeZone_>(std::move(timeZone));
  }

  QB_VALUE(timeZone, TimeZone)
  QB_PARAMS(QB_REQUIRED(timeZone, "time_zone"))
  QB_RESULTS()
};

}  // namespace qb
