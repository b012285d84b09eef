#pragma once

#include <QBComponentAPI/frame/DictModel.hpp>

namespace qb {

class QBAPIAutoUpdate;
class QBAPILegalConfig;

/// The client configuration returned by initialise and get_config.
class QBAPIClientConfig final : public QBAPIModel {
  QB_DICT_MODEL(QBAPIClientConfig, "ClientConfig")
  QB_MODEL(QBAPIAutoUpdate, autoUpdate, AutoUpdate)
  QB_VALUE(expertDefaultCount, ExpertDefaultCount)
  QB_VALUE(shareAppUrl, ShareAppUrl)
  QB_VALUE(timestamp, Timestamp)
  QB_MODEL(QBAPILegalConfig, legalConfig, LegalConfig)
  QB_FIELDS(QB_REQUIRED(autoUpdate, "auto_update"), QB_REQUIRED(expertDefaultCount, "expert_default_count"),
            QB_OPTIONAL(shareAppUrl, "share_app_url"), QB_REQUIRED(timestamp, "timestamp"),
            QB_REQUIRED(legalConfig, "legal_config"))
};

}  // namespace qb
