#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

class QBAPIFaq;

/// get_faq: the account FAQ for a language and device type.
class QBUserGetFaqMessage final : public DictMessage<QBUserGetFaqMessage> {
  QB_DICT_MESSAGE(QBUserGetFaqMessage, "GetFaq", user::kGetFaq)
  static std::shared_ptr<QBUserGetFaqMessage> initWithData(std::int64_t languageCode, std::int64_t deviceType) {
    return make<&Self::languageCode_, &Self::deviceType_>(languageCode, deviceType);
  }

  QB_INTEGER(languageCode, LanguageCode)
  QB_INTEGER(deviceType, DeviceType)
  QB_PARAMS(QB_OPTIONAL(languageCode, "language_code"), QB_OPTIONAL(deviceType, "device_type"))

  QB_MODEL_LIST(QBAPIFaq, faqs, Faqs)
  QB_RESULTS(QB_OPTIONAL(faqs, "faqs"))
};

}  // namespace qb
