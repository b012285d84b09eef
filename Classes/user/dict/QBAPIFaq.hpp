#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

/// One entry of the account FAQ.
class QBAPIFaq final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIFaq, "Faq")
  QB_VALUE(title, Title)
  QB_VALUE(content, Content)
  QB_VALUE(faqType, FaqType)
  QB_FIELDS(QB_REQUIRED(title, "title"), QB_REQUIRED(content, "content"), QB_REQUIRED(faqType, "faq_type"))
};

}  // namespace qb
