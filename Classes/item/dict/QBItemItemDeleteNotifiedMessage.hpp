#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// item_delete_notified: tells the server that the user has seen the notice that stored items are to be
/// deleted; nothing is sent and nothing read back.
class QBItemItemDeleteNotifiedMessage final : public DictMessage<QBItemItemDeleteNotifiedMessage> {
  QB_DICT_MESSAGE(QBItemItemDeleteNotifiedMessage, "ItemDeleteNotified", item::kItemDeleteNotified)
  static std::shared_ptr<QBItemItemDeleteNotifiedMessage> initWithData() { return make<>(); }

  QB_PARAMS()
  QB_RESULTS()
};

}  // namespace qb
