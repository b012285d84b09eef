#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIVipInfo;

/// The subscription summary a purchase verification returns. The app builds it from a reply it obtained
/// itself; no endpoint of the library returns it.
class QBAPIVerifyResult final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIVerifyResult, "VerifyResult")
  QB_MODEL(QBAPIVipInfo, vipInfo, VipInfo)
  QB_FIELDS(QB_REQUIRED(vipInfo, "vip_info"))
};

}  // namespace qb
