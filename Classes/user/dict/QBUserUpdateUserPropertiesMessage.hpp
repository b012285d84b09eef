#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// update_user_properties: one text value under one text key.
class QBUserUpdateUserPropertiesMessage final : public DictMessage<QBUserUpdateUserPropertiesMessage> {
  QB_DICT_MESSAGE(QBUserUpdateUserPropertiesMessage, "UpdateUserProperties", user::kUpdateUserProperties)
  static std::shared_ptr<QBUserUpdateUserPropertiesMessage> initWithData(std::optional<JsonValue> key,
                                                                         std::optional<JsonValue> value) {
    return make<&Self::key_, &Self::value_>(std::move(key), std::move(value));
  }

  QB_VALUE(key, Key)
  QB_VALUE(value, Value)
  QB_PARAMS(QB_REQUIRED(key, "key"), QB_REQUIRED(value, "value"))
  QB_RESULTS()
};

}  // namespace qb
