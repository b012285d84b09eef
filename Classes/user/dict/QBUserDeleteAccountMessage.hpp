#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/user/UserCatalogue.hpp>

namespace qb {

/// delete_account: deletes the logged-in account.
class QBUserDeleteAccountMessage final : public DictMessage<QBUserDeleteAccountMessage> {
  QB_DICT_MESSAGE(QBUserDeleteAccountMessage, "DeleteAccount", user::kDeleteAccount)
  static std::shared_ptr<QBUserDeleteAccountMessage> initWithData() { return make<>(); }

  QB_PARAMS()
  QB_RESULTS()
};

}  // namespace qb
