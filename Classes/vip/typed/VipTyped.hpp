// Every Typed-face record of the subscription domain.
#pragma once

#include <QBComponentAPI/frame/CodecInstances.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>
#include <QBComponentAPI/vip/typed/RestoreResultModel.hpp>
#include <QBComponentAPI/vip/typed/VerifyResultModel.hpp>
#include <QBComponentAPI/vip/typed/VipGetVipCardRequest.hpp>
#include <QBComponentAPI/vip/typed/VipGetVipCardResponse.hpp>
#include <QBComponentAPI/vip/typed/VipRemindUserToAttentionTrialRequest.hpp>
#include <QBComponentAPI/vip/typed/VipRemindUserToAttentionTrialResponse.hpp>

// The generic codecs of these records are compiled once, by the domain's .cpp file.
QB_CODEC_EXTERN_DOMAIN(QB_VIP_ENDPOINTS, QB_VIP_RECORDS)
