#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/item/ItemCatalogue.hpp>

namespace qb {

/// item_delete_candidate_user: a bare signal to the server about the user whose stored items are to be
/// deleted; nothing is sent and nothing read back.
class QBItemItemDeleteCandidateUserMessage final : public DictMessage<QBItemItemDeleteCandidateUserMessage> {
  QB_DICT_MESSAGE(QBItemItemDeleteCandidateUserMessage, "ItemDeleteCandidateUser", item::kItemDeleteCandidateUser)
  static std::shared_ptr<QBItemItemDeleteCandidateUserMessage> initWithData() { return make<>(); }

  QB_PARAMS()
  QB_RESULTS()
};

}  // namespace qb
