#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>
#include <QBComponentAPI/vip/VipCatalogue.hpp>

namespace qb {

class QBAPIVipInfo;

/// vip_card: the signed-in user's subscription summary. Sends nothing; a reply without one leaves the
/// summary read before.
class QBVipGetVipCardMessage final : public DictMessage<QBVipGetVipCardMessage> {
  QB_DICT_MESSAGE(QBVipGetVipCardMessage, "GetVipCard", vip::kVipCard)
  static std::shared_ptr<QBVipGetVipCardMessage> initWithData() { return make<>(); }

  QB_PARAMS()

  QB_MODEL(QBAPIVipInfo, vipInfo, VipInfo)
  QB_RESULTS(QB_OPTIONAL(vipInfo, "vip_info"))
};

}  // namespace qb
