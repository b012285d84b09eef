#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIVipInfo;

/// The subscription summary a purchase restoration returns, with an opaque login secret handed to the app
/// as it came. The app builds it from a reply it obtained itself; no endpoint of the library returns it.
class QBAPIRestoreResult final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIRestoreResult, "RestoreResult")
  QB_MODEL(QBAPIVipInfo, vipInfo, VipInfo)
  QB_VALUE(loginSecret, LoginSecret)
  QB_FIELDS(QB_REQUIRED(vipInfo, "vip_info"), QB_OPTIONAL(loginSecret, "login_secret"))
};

}  // namespace qb
