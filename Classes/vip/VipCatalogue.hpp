// The subscription status: every endpoint and every record, once (see frame/Catalogue.hpp). The
// subscription summary the records wrap, QBAPIVipInfo / VipInfoModel, belongs to the account domain.
#pragma once

#include <QBComponentAPI/frame/Catalogue.hpp>

/// constant, path, verb, authentication, Dictionary-face message, Typed-face request
#define QB_VIP_ENDPOINTS(BOTH, DICT, TYPED)                                                         \
  BOTH(kVipCard, "v3/vip/vip_card", get, required, QBVipGetVipCardMessage, VipGetVipCardRequest) \
  TYPED(kRemindUserToAttentionTrial, "v3/vip/remind_user_to_attention_trial", post, required,     \
        VipRemindUserToAttentionTrialRequest)

/// Dictionary-face model, Typed-face model
#define QB_VIP_RECORDS(BOTH, DICT, TYPED)   \
  BOTH(QBAPIVerifyResult, VerifyResultModel) \
  BOTH(QBAPIRestoreResult, RestoreResultModel)

QB_CATALOGUE(vip, QB_VIP_ENDPOINTS, QB_VIP_RECORDS)
